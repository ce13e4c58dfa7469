#include "frmPrpComms.h"

#include "CommPort.h"
#include "WindowPlace.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmPrpComms.h"

#include <QLineEdit>

namespace {

constexpr int LastPort = 8;

} // namespace

frmPrpComms::frmPrpComms(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmPrpComms>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    RememberPlace(*this);
    connect(m_ui->cboLocalPort, &QComboBox::currentIndexChanged, this, &frmPrpComms::ShowDevice);
    connect(m_ui->cboDevice, &QComboBox::editTextChanged, this, &frmPrpComms::KeepDevice);
    connect(m_ui->cmdSetupOK, &QPushButton::clicked, this, &frmPrpComms::cmdSetupOK_Click);
    connect(m_ui->cmdSetupCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmPrpComms::~frmPrpComms() = default;

void frmPrpComms::Populate() {
    {
        const QSignalBlocker blocker(m_ui->cboDevice); // filling the list is not a choice
        m_ui->cboDevice->addItems(SerialDevices());
    }
    for (int number = 1; number <= LastPort; ++number)
        m_ui->cboLocalPort->addItem(QStringLiteral("COM%1:").arg(number), number);
    m_ui->cboLocalPort->setCurrentIndex(comPort >= 1 && comPort <= LastPort ? comPort - 1 : 1);
    ShowDevice();
}

int frmPrpComms::SelectedPort() const { return m_ui->cboLocalPort->currentData().toInt(); }

void frmPrpComms::ShowDevice() {
    const int port = SelectedPort();
    const QSignalBlocker blocker(m_ui->cboDevice);
    const QString automatic = AutomaticDevice(port);
    m_ui->cboDevice->setEditText(m_devices.value(port, ChosenDevice(port)));
    m_ui->cboDevice->lineEdit()->setPlaceholderText(
        Labelled(Translate("Automatic"), automatic.isEmpty() ? Translate("no device") : automatic));
}

void frmPrpComms::KeepDevice() {
    m_devices[SelectedPort()] = m_ui->cboDevice->currentText().trimmed();
}

void frmPrpComms::cmdSetupOK_Click() {
    for (auto device = m_devices.cbegin(); device != m_devices.cend(); ++device)
        ChooseDevice(device.key(), device.value());
    comPort = SelectedPort();
    accept();
}
