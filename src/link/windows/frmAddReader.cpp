#include "frmAddReader.h"

#include "CapturedId.h"
#include "Clock.h"
#include "DockingLink.h"
#include "LookUps.h"
#include "NameField.h"
#include "WindowTools.h"
#include "frmDownload.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmAddReader.h"

frmAddReader::frmAddReader(DockingLink& link, QWidget* parent)
    : EditorDialog(parent), m_ui(std::make_unique<Ui::frmAddReader>()), m_link(link) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    CapturedIdControls{*m_ui->img1, *m_ui->lblMsg, *m_ui->cmdOK}.ShowNone();
    SelectAllOnFocus(*m_ui->txtDesc);
    connect(m_ui->cmdRead, &QPushButton::clicked, this, &frmAddReader::cmdRead_Click);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmAddReader::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmAddReader::Cancel);
    gCommActive = true;
    m_link.InBuffer().Clear();
}

frmAddReader::~frmAddReader() { gCommActive = false; }

QStringList frmAddReader::Entered() const { return {m_ui->lblID->text(), m_ui->txtDesc->text()}; }

int frmAddReader::exec() {
    m_ui->txtDesc->setText(Desc);
    return EditorDialog::exec();
}

void frmAddReader::cmdRead_Click() {
    m_ui->lblID->clear();
    CapturedIdControls{*m_ui->img1, *m_ui->lblMsg, *m_ui->cmdOK}.ClearPicture();
    bool ok = false;
    CheckReaderID(ok);
    if (ok)
        m_ui->txtDesc->setFocus();
}

void frmAddReader::CheckReaderID(bool& ok) {
    ok = false;
    TransferResult result;
    {
        frmDownload dialog(m_link, this);
        result = dialog.Run(TransferPurpose::Identifier);
    }
    if (!result.OK) {
        IvMessageBox(Translate("Reader ID Download Failed"));
        return;
    }
    GuardedWithBox("CheckReaderID", [&] {
        ShowReader(result.PipeID);
        ok = true;
    });
    m_link.InBuffer().Clear();
    DoEvents();
}

void frmAddReader::ShowReader(const QString& readerId) {
    const bool isNew = !FindReader(readerId);
    m_ui->lblID->setText(readerId);
    if (isNew)
        ReaderId = readerId;
    CapturedIdControls{*m_ui->img1, *m_ui->lblMsg, *m_ui->cmdOK}.ShowVerdict(isNew);
}

void frmAddReader::cmdOK_Click() {
    if (!AcceptName(Named::Item, *m_ui->txtDesc, ExistingNames))
        return;
    if (m_ui->lblID->text().isEmpty()) { // a later read failed: there is no reader to add
        IvMessageBox(Translate("Reader ID Download Failed"));
        m_ui->cmdRead->setFocus();
        return;
    }
    ReaderId = m_ui->lblID->text();
    Desc = m_ui->txtDesc->text();
    accept();
}
