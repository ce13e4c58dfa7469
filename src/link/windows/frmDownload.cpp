#include "frmDownload.h"

#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmDownload.h"

#include <QApplication>

frmDownload::frmDownload(DockingLink& link, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmDownload>()), m_transfer(link, *this) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    // The warning keeps its place while it is hidden, so that nothing jumps.
    QSizePolicy policy = m_ui->lblWarning->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_ui->lblWarning->setSizePolicy(policy);
    m_ui->lblWarning->hide();
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmDownload::reject);
    connect(&m_transfer, &MemoryTransfer::Closed, this, [this] { done(0); });
}

frmDownload::~frmDownload() = default;

TransferResult frmDownload::Run(TransferPurpose purpose) {
    m_transfer.SetPurpose(purpose);
    m_transfer.Start();
    exec();
    return m_transfer.Result();
}

void frmDownload::ShowText(const QString& text) { m_ui->lblMsgs->setText(text); }

void frmDownload::ShowReaderId(const QString& readerId) { m_ui->lblPipeID->setText(readerId); }

void frmDownload::ShowWarning(bool visible) { m_ui->lblWarning->setVisible(visible); }

void frmDownload::ShowProgress(int value, int maximum) {
    if (maximum > 0)
        m_ui->prgOnline->setMaximum(maximum);
    m_ui->prgOnline->setValue(value);
}

void frmDownload::ShowProgressText(const QString& text) { m_ui->lblProgress->setText(text); }

void frmDownload::Beep() { QApplication::beep(); }
