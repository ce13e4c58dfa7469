#include "frmAddButton.h"

#include "CapturedId.h"
#include "DockingLink.h"
#include "NameField.h"
#include "WindowTools.h"
#include "frmManualID.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmAddButton.h"

namespace {

constexpr int CaptureInterval = 300;
constexpr int FlashPause = 100;

} // namespace

frmAddButton::frmAddButton(DockingLink& link, QWidget* parent)
    : EditorDialog(parent, Placed::SizeOnly), m_ui(std::make_unique<Ui::frmAddButton>()),
      m_capture(link), m_tmrGetID(CaptureInterval) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    CapturedIdControls{*m_ui->img1, *m_ui->lblMsg, *m_ui->cmdOK}.ShowNone();
    SelectAllOnFocus(*m_ui->txtName);
    connect(m_ui->cmdManual, &QPushButton::clicked, this, &frmAddButton::cmdManual_Click);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmAddButton::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmAddButton::Cancel);
    connect(&m_tmrGetID, &Timer::Tick, this, &frmAddButton::tmrGetID_Timer);
    Guarded("Form_Load of Form frmAddButton", [this] { Form_Load(); });
}

frmAddButton::~frmAddButton() = default;

void frmAddButton::Form_Load() {
    m_tmrGetID.SetEnabled(true);
    m_capture.ReadCodes();
}

QStringList frmAddButton::Entered() const {
    return {m_ui->lblID->text(), m_ui->txtName->text(), m_ui->txtDesc->text()};
}

void frmAddButton::SetIcon(const QString& name) { setWindowIcon(ProgramIcon(name)); }

int frmAddButton::exec() {
    m_ui->txtName->setText(ButtonName);
    m_ui->txtDesc->setText(Desc);
    m_ui->txtName->setFocus();
    return EditorDialog::exec();
}

// No event is handled here. A click that opened the manual entry from within a tick would stop the
// timer until that entry is closed.
void frmAddButton::tmrGetID_Timer() {
    if (!m_capture.LineIsOpen())
        m_ui->lblHint->setText(Translate("The docking station is no longer connected. Enter the ID "
                                         "by hand, or go to the home page to connect again."));
    const QString code = m_capture.TakeCode();
    if (code.isEmpty())
        return;
    if (code == m_lastCode) {
        CapturedIdControls{*m_ui->img1, *m_ui->lblMsg, *m_ui->cmdOK}.ClearPicture();
        Sleep(FlashPause);
    }
    m_lastCode = code;
    ShowCode(code);
}

void frmAddButton::ShowCode(const QString& code) {
    m_ui->lblID->setText(code);
    const bool isFree = m_capture.IsFree(code);
    m_dallasId = isFree ? code : QString();
    CapturedIdControls{*m_ui->img1, *m_ui->lblMsg, *m_ui->cmdOK}.ShowVerdict(isFree);
}

void frmAddButton::cmdManual_Click() {
    frmManualID dialog(this);
    dialog.exec();
    if (dialog.OK())
        ShowCode(dialog.ID);
    m_ui->txtName->setFocus();
}

void frmAddButton::cmdOK_Click() {
    if (!AcceptName(Named::Item, *m_ui->txtName, ExistingNames) ||
        !AcceptDescription(*m_ui->txtDesc))
        return;
    ButtonName = m_ui->txtName->text();
    Desc = m_ui->txtDesc->text();
    accept();
}
