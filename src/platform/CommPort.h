#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class QSerialPort;

/// The serial port: opening, binary input and output, and one signal for everything that happens on
/// the line. The signal comes only while events are handled (DoEvents, or the event loop).
class CommPort : public QObject {
    Q_OBJECT
public:
    enum Event {
        comEvSend = 1,
        comEvReceive = 2,
        comEvCTS = 3,
        comEvDSR = 4,
        comEvEOF = 7,
        comEventBreak = 1001,
        comEventFrame = 1004,
        comEventOverrun = 1006,
        comEventRxOver = 1008,
        comEventRxParity = 1009,
        comEventTxFull = 1010,
        comEventDCB = 1011
    };

    explicit CommPort(QObject* parent = nullptr);
    ~CommPort() override;

    /// The number of the port, 1 to 8. `DeviceOfPort` says which device that is.
    int Number = 1;
    /// "9600,n,8,1": rate, parity (n, e, o), data bits, stop bits.
    QString Settings;

    bool PortOpen() const;
    /// Throws RunTimeError (PortNotAvailable) if the device cannot be opened. If the device is
    /// unplugged, the port closes itself.
    void SetPortOpen(bool open);

    /// All waiting bytes. Throws RunTimeError (PortNotOpen).
    QByteArray Input();
    /// Hands bytes to the system without waiting until they are sent. Throws RunTimeError
    /// (PortNotOpen).
    void Output(const QByteArray& bytes);
    int CommEvent() const { return m_event; }

signals:
    /// Something happened; CommEvent says what.
    void OnComm();
    /// The device is gone, and the port has closed itself.
    void Lost();

private:
    void Raise(Event event);
    void HandleError(int error);

    std::unique_ptr<QSerialPort> m_port;
    int m_event = 0;
};

/// The device for a port number from 1 to 8; empty if there is none. It is the one that the
/// operator chose, or else the automatic one.
QString DeviceOfPort(int number);
/// The device that the operator chose for a port number; empty if none.
QString ChosenDevice(int number);
/// The device that is used if none is chosen: the machine's serial devices in order (on Windows,
/// the port of that name).
QString AutomaticDevice(int number);
/// Saves the device for a port number. An empty device deletes the choice.
void ChooseDevice(int number, const QString& device);
/// Makes every port number mean `device` until the process ends. For a device named on the command
/// line.
void OverrideDevice(const QString& device);
/// False once a device is unplugged.
bool DeviceExists(const QString& device);
/// The machine's serial devices, in order.
QStringList SerialDevices();
