#include "frmFirmwareVersion.h"

#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmFirmwareVersion.h"

frmFirmwareVersion::frmFirmwareVersion(const QString& firmware, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmFirmwareVersion>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    m_ui->Label1->setText(m_ui->Label1->text() + u' ' + firmware);
    ShowIcon(*m_ui->imgReader, QStringLiteral("reader"));
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::accept);
}

frmFirmwareVersion::~frmFirmwareVersion() = default;
