#include "frmUserMaintenance.h"

#include "NameFault.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mOperators.h"
#include "mTranslations.h"
#include "ui_frmUserMaintenance.h"

frmUserMaintenance::frmUserMaintenance(QWidget* parent)
    : EditorDialog(parent), m_ui(std::make_unique<Ui::frmUserMaintenance>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, [](const QString& text) { return Translate(text); });
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
    m_type = type;
    m_ui->txtPassword->clear();
    m_ui->txtRetypePassword->clear();
    ReadOperatorRecord();
    setWindowTitle(windowTitle() + QStringLiteral(" - ") +
                   Translate(type == MasterOperator ? "Master" : "User"));
}

void frmUserMaintenance::ReadOperatorRecord() {
    m_operator.reset();
    GuardedWithBox("ReadOperatorRecord", [this] {
        auto rows = std::make_unique<Recordset>();
        rows->CursorLocation = adUseClient;
        rows->Open(QStringLiteral("SELECT * FROM tblOperators WHERE LoginName = ?;"),
                   {LoginNameOf(m_type)}, *gConn);
        m_operator = std::move(rows);
    });
}

bool frmUserMaintenance::Update() {
    return GuardedWithBox("Update", [this] {
        if (!m_operator || m_operator->RecordCount() < 1)
            return false;
        m_operator->Set(u"Password", m_ui->txtPassword->text());
        m_operator->Update();
        return true;
    });
}

void frmUserMaintenance::cmdOK_Click() {
    if (m_ui->txtPassword->text() != m_ui->txtRetypePassword->text()) {
        IvMessageBox(Translate("The passwords do not match, please re-enter"));
        m_ui->txtPassword->setFocus();
        return;
    }
    if (HasControls(m_ui->txtPassword->text())) { // the login could never be given it again
        IvMessageBox(
            Translate("A password cannot contain line breaks or other control characters."));
        FocusAndSelect(*m_ui->txtPassword);
        return;
    }
    if (Update())
        accept();
}
