#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class QSerialPort;

/// The serial port control: opening, binary input and output, and one event for whatever happens
/// on the line. Events come only while events are handled (DoEvents, or the event loop).
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

    /// Number of the port, 1 to 8; which device that is tells DeviceOfPort.
    int Number = 1;
    /// "9600,n,8,1": rate, parity (n, e, o), data bits, stop bits.
    QString Settings;

    bool PortOpen() const;
    /// Throws RunTimeError (PortNotAvailable) if the device cannot be opened. A port whose device
    /// vanishes closes itself.
    void SetPortOpen(bool open);

    /// All bytes that wait. Throws RunTimeError (PortNotOpen).
    QByteArray Input();
    /// Hands bytes to the system without waiting for the line. Throws RunTimeError (PortNotOpen).
    void Output(const QByteArray& bytes);
    int CommEvent() const { return m_event; }

signals:
    /// Something happened; CommEvent tells what.
    void OnComm();

private:
    void Raise(Event event);
    void HandleError(int error);

    std::unique_ptr<QSerialPort> m_port;
    int m_event = 0;
};

/// The device behind a port number from 1 to 8: the one that the operator chose for it, else the
/// machine's serial devices in order (on Windows: the port of that name). Empty where there is
/// none.
QString DeviceOfPort(int number);
/// The parts of that answer: what the operator chose, empty if nothing; and what is taken then.
QString ChosenDevice(int number);
QString AutomaticDevice(int number);
/// Chooses the device for a port number for good; an empty device takes the choice back.
void ChooseDevice(int number, const QString& device);
/// While the process runs, `device` is what every port number means. For a device named on the
/// command line.
void OverrideDevice(const QString& device);
/// The machine's serial devices, in order.
QStringList SerialDevices();
