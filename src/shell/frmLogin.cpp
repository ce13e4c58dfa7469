#include "frmLogin.h"

#include "Application.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mOperators.h"
#include "mSettings.h"
#include "mTranslations.h"
#include "ui_frmLogin.h"

namespace {

constexpr int LastTry = 4;

OperatorType LastLogin() {
    const int saved =
        SavedNumber(SettingsSection::Info, QStringLiteral("LastLogin"), MasterOperator);
    return saved == MasterOperator ? MasterOperator : UserOperator;
}

} // namespace

frmLogin::frmLogin(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::frmLogin>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    EnterGroupsAtChecked(*this);
    setWindowTitle(ShortTitle + QStringLiteral(" - ") + Translate("Version") + u' ' +
                   GetVersionString());
    setWindowIcon(ProgramIcon(QStringLiteral("wardlock")));
    (LastLogin() == MasterOperator ? m_ui->optUser_0 : m_ui->optUser_1)->setChecked(true);
    Guarded("LoadSplashImage of Form frmSplash",
            [this] { ShowPicture(*m_ui->imgLogo, ProgramFile(QStringLiteral("login.bmp"))); });
    SelectAllOnFocus(*m_ui->txtEnteredPassword);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmLogin::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmLogin::cmdCancel_Click);
}

frmLogin::~frmLogin() = default;

bool frmLogin::Refused() const { return m_failures >= LastTry; }

void frmLogin::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    FocusPassword();
}

void frmLogin::FocusPassword() {
    m_ui->txtEnteredPassword->setFocus();
    m_ui->txtEnteredPassword->selectAll();
}

void frmLogin::cmdOK_Click() {
    const OperatorType type = m_ui->optUser_0->isChecked() ? MasterOperator : UserOperator;
    bool checked = false;
    m_result = Guarded("cmdOK_Click of Form frmLogin", ErrorShow::Dialog, [&] {
        const OperatorType result = CheckOperator(type, m_ui->txtEnteredPassword->text());
        checked = true;
        return result;
    });
    if (!checked) // the store failed, not the operator
        return;
    if (m_result != NoOperator) {
        accept();
        return;
    }
    if (++m_failures < LastTry) {
        IvMessageBox(Translate("The User Name / Password are incorrect. Please try again."),
                     MessageKind::Warning, MessageButtons::Ok, ShortTitle);
        FocusPassword();
        return;
    }
    IvMessageBox(Translate("You could not be logged in.  Closing the program now."));
    reject();
}

void frmLogin::cmdCancel_Click() {
    m_result = NoOperator;
    reject();
}
