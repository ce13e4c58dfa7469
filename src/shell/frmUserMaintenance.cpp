#include "frmUserMaintenance.h"

#include "NameFault.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmUserMaintenance.h"

namespace {

bool EmptyPasswordConfirmed() {
    return IvMessageBox(Translate("The password is empty. Anyone could log in without one.") +
                            QStringLiteral("\n\n") + Translate("Do you want to save it?"),
                        MessageKind::Question, MessageButtons::YesNo) == MessageAnswer::Yes;
}

} // namespace

frmUserMaintenance::frmUserMaintenance(QWidget* parent)
    : EditorDialog(parent), m_ui(std::make_unique<Ui::frmUserMaintenance>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    SelectAllOnFocus(*m_ui->txtPassword);
    SelectAllOnFocus(*m_ui->txtRetypePassword);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmUserMaintenance::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmUserMaintenance::Cancel);
}

frmUserMaintenance::~frmUserMaintenance() = default;

QStringList frmUserMaintenance::Entered() const {
    return {m_ui->txtPassword->text(), m_ui->txtRetypePassword->text()};
}

void frmUserMaintenance::FormStart(OperatorType type) {
    m_ui->txtPassword->clear();
    m_ui->txtRetypePassword->clear();
    ReadOperatorRecord(type);
    setWindowTitle(windowTitle() + QStringLiteral(" - ") +
                   Translate(type == MasterOperator ? "Master" : "User"));
}

void frmUserMaintenance::ReadOperatorRecord(OperatorType type) {
    m_operator.reset();
    GuardedWithBox("ReadOperatorRecord",
                   [&] { m_operator = std::make_unique<OperatorRecord>(type); });
}

bool frmUserMaintenance::Update() {
    return GuardedWithBox("Update", [this] {
        return m_operator && m_operator->SetPassword(m_ui->txtPassword->text());
    });
}

void frmUserMaintenance::cmdOK_Click() {
    if (m_ui->txtPassword->text() != m_ui->txtRetypePassword->text()) {
        IvMessageBox(Translate("The passwords do not match, please re-enter"));
        m_ui->txtPassword->setFocus();
        return;
    }
    if (HasControls(m_ui->txtPassword->text())) { // it could not be typed at the login
        IvMessageBox(
            Translate("A password cannot contain line breaks or other control characters."));
        FocusAndSelect(*m_ui->txtPassword);
        return;
    }
    if (m_ui->txtPassword->text().isEmpty() && !EmptyPasswordConfirmed()) {
        m_ui->txtPassword->setFocus();
        return;
    }
    if (Update())
        accept();
}
