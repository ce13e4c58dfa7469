#include "CommPort.h"

#include "RunTimeError.h"
#include "Settings.h"

#include <QFile>
#include <QSerialPort>
#include <QSerialPortInfo>

#include <algorithm>

namespace {

const QString Section = QStringLiteral("ComPort_Settings");

QString KeyOf(int number) { return QStringLiteral("Device%1").arg(number); }

QString& Overridden() {
    static QString device;
    return device;
}

QSerialPort::Parity ParityOf(const QString& letter) {
    if (letter.compare(u"e", Qt::CaseInsensitive) == 0)
        return QSerialPort::EvenParity;
    if (letter.compare(u"o", Qt::CaseInsensitive) == 0)
        return QSerialPort::OddParity;
    return QSerialPort::NoParity;
}

} // namespace

CommPort::CommPort(QObject* parent) : QObject(parent) {}

CommPort::~CommPort() = default;

bool CommPort::PortOpen() const { return m_port && m_port->isOpen(); }

void CommPort::SetPortOpen(bool open) {
    if (!open) {
        // Deleted later: this may be called from one of its own signals.
        if (m_port) {
            m_port->disconnect(this);
            m_port->close();
            m_port.release()->deleteLater();
        }
        return;
    }
    const QString device = DeviceOfPort(Number);
    auto port = std::make_unique<QSerialPort>();
    port->setPortName(device);
    const QStringList settings = Settings.split(u',');
    port->setBaudRate(settings.value(0).toInt());
    port->setParity(ParityOf(settings.value(1)));
    port->setDataBits(static_cast<QSerialPort::DataBits>(settings.value(2).toInt()));
    port->setStopBits(settings.value(3) == u"2" ? QSerialPort::TwoStop : QSerialPort::OneStop);
    port->setFlowControl(QSerialPort::NoFlowControl);
    if (device.isEmpty() || !port->open(QIODevice::ReadWrite))
        throw RunTimeError(RunTimeErrorNumber::PortNotAvailable,
                           device.isEmpty() ? QStringLiteral("Invalid port number")
                                            : device + QStringLiteral(": ") + port->errorString());
    port->clear(QSerialPort::Input); // what was waiting belongs to an earlier conversation
    connect(port.get(), &QSerialPort::readyRead, this, [this] { Raise(comEvReceive); });
    connect(port.get(), &QSerialPort::errorOccurred, this,
            [this](QSerialPort::SerialPortError error) { HandleError(error); });
    m_port = std::move(port);
}

QByteArray CommPort::Input() {
    if (!PortOpen())
        throw RunTimeError(RunTimeErrorNumber::PortNotOpen,
                           QStringLiteral("Operation valid only when the port is open"));
    return m_port->readAll();
}

void CommPort::Output(const QByteArray& bytes) {
    if (!PortOpen())
        throw RunTimeError(RunTimeErrorNumber::PortNotOpen,
                           QStringLiteral("Operation valid only when the port is open"));
    m_port->write(bytes);
    m_port->flush();
}

void CommPort::Raise(Event event) {
    m_event = event;
    emit OnComm();
}

void CommPort::HandleError(int error) {
    switch (static_cast<QSerialPort::SerialPortError>(error)) {
    case QSerialPort::NoError:
    case QSerialPort::TimeoutError:
        break;
    case QSerialPort::WriteError:
        Raise(comEventTxFull);
        break;
    case QSerialPort::ReadError:
    case QSerialPort::ResourceError:
    case QSerialPort::DeviceNotFoundError:
    case QSerialPort::PermissionError:
        // The device is gone, but what it sent before can still be read.
        if (m_port->bytesAvailable() > 0)
            Raise(comEvReceive);
        SetPortOpen(false);
        Raise(comEventDCB);
        emit Lost();
        break;
    default:
        Raise(comEventDCB);
        break;
    }
}

QStringList SerialDevices() {
    QStringList devices;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
#ifdef Q_OS_WIN
        devices += info.portName();
#else
        devices += info.systemLocation();
#endif
    std::sort(devices.begin(), devices.end(), [](const QString& a, const QString& b) {
        return a.size() != b.size() ? a.size() < b.size() : a < b;
    });
    return devices;
}

bool DeviceExists(const QString& device) {
#ifdef Q_OS_WIN
    return SerialDevices().contains(device);
#else
    return QFile::exists(device);
#endif
}

QString DeviceOfPort(int number) {
    if (!Overridden().isEmpty())
        return Overridden();
    const QString chosen = ChosenDevice(number);
    return chosen.isEmpty() ? AutomaticDevice(number) : chosen;
}

QString ChosenDevice(int number) { return GetSetting(SettingsApplication, Section, KeyOf(number)); }

QString AutomaticDevice(int number) {
#ifdef Q_OS_WIN
    return QStringLiteral("COM%1").arg(number);
#else
    return SerialDevices().value(number - 1);
#endif
}

void ChooseDevice(int number, const QString& device) {
    SaveSetting(SettingsApplication, Section, KeyOf(number), device);
}

void OverrideDevice(const QString& device) { Overridden() = device; }
