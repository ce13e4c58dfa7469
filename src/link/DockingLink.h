#pragma once

#include "CommPort.h"
#include "DateTime.h"
#include "cInBuffer.h"

#include <QByteArray>
#include <QObject>

#include <cstdint>
#include <optional>

/// The connection to the docking station: the port, the receive buffer that its events fill, and
/// the one routine that sends and waits. Owned by the main window (or the command line), and handed
/// to whatever talks to the dock.
///
/// Everything runs on the interface thread. Bytes reach the buffer only while events are handled
/// and gCommActive is true; otherwise they are dropped.
class DockingLink : public QObject {
    Q_OBJECT
public:
    /// The line settings of a docking station: rate, parity, data bits, stop bits.
    static const QString CommSettings;

    explicit DockingLink(QObject* parent = nullptr);

    CommPort& comPort() { return m_comPort; }
    cInBuffer& InBuffer() { return m_inBuffer; }
    /// The number of bytes that have arrived so far, including dropped ones.
    std::int64_t BytesSeen() const { return m_bytesSeen; }

    /// True if the port is open already or could be opened.
    bool OpenPort(int number, const QString& settings = CommSettings);
    /// Why the port could not be opened at the last try, in the system's words.
    const QString& OpenFault() const { return m_openFault; }
    /// Closes the port if it is open.
    void ClosePort();

    /// Sends a command and waits for its reply.
    ///
    /// The command is sent up to `tries` times. After each sending the reader has 500 ms to answer;
    /// then the buffer is searched for `timeout` ms. If nothing came, a pause of the same length
    /// follows. A frame whose reply code is not `expected` is skipped, unless `acceptAny`. A memory
    /// frame, which may come late, is always skipped. `reply` becomes the payload: the reply code,
    /// then the status byte. gWaitCancelled ends the wait.
    void WaitFor(int tries, std::uint8_t header1, const QByteArray& data, int timeout,
                 std::uint8_t expected, bool acceptAny, QByteArray& reply, bool& received);

    /// A wait is measured by the time of day, so across midnight it goes on until a frame comes. If
    /// this is set, it always ends after its time-out.
    bool GivesUpInTime = false;
    /// If a wait lasts longer than its time-out, sets gWaitCancelled, which ends it, and gives
    /// true. The caller clears gWaitCancelled once everything that waited has ended.
    bool EndOverdueWait() const;

    /// From here on, a status frame "no reader" is noticed: it means that the reader that is docked
    /// now was taken out. Bytes already in the buffer count too.
    void WatchForRemoval();
    bool ReaderWasRemoved();
    /// Pauses until nothing but noise arrives. If only the first frame of a memory was wanted, all
    /// the others have then come.
    void AwaitQuietLine();

    /// True if a docking station answers.
    bool DetectStation();
    /// Sets the reader's clock. True if the reader confirms it.
    bool TxNewDate(std::uint8_t hour, std::uint8_t minute, std::uint8_t dateMsb,
                   std::uint8_t dateLsb);
    /// Sets the clock to a moment, without its seconds. Sends nothing if the date is not usable
    /// (ClockDateIsUsable).
    bool SetClock(DateTime moment);
    /// Sets the clock to the current time.
    bool SetClockToNow();
    /// Sets the reader's option byte (ReaderSignals). True if the reader confirms it.
    bool TxOptions(std::uint8_t options);
    /// Sends one erase command; `succeeded` if the reader confirms it. Sends nothing if
    /// ReaderWasRemoved.
    void EraseRequest(bool& succeeded);

private:
    void OnComm();
    void Receive();

    CommPort m_comPort;
    QString m_openFault;
    cInBuffer m_inBuffer;
    std::optional<cInBuffer> m_watched; ///< what has arrived since WatchForRemoval
    std::optional<std::int64_t> m_waitEnd;
    std::int64_t m_bytesSeen = 0;
    bool m_readerRemoved = false;
};

/// A reader's clock takes dates from 1 January 2000 to 6 June 2179. For any other, tells the
/// operator and gives false.
bool ClockDateIsUsable(DateTime moment);

/// The saved port number, or 1 if that is not a number from 1 to 8. It is always saved again.
int SavedPortNumber();
void SavePortNumber(int number);
