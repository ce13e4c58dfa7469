#pragma once

#include "CommPort.h"
#include "DateTime.h"
#include "cInBuffer.h"

#include <QByteArray>
#include <QObject>

#include <cstdint>
#include <optional>

/// The road to the docking station: the port, the receive buffer that its events fill, and the one
/// send-and-wait routine. Owned by the main window (or the command line), and handed to whatever
/// speaks with the dock.
///
/// Everything runs on the interface thread. Bytes reach the buffer only while events are handled,
/// and only while gCommActive is true; otherwise they are dropped.
class DockingLink : public QObject {
    Q_OBJECT
public:
    /// How a docking station talks: rate, parity, data bits, stop bits.
    static const QString CommSettings;

    explicit DockingLink(QObject* parent = nullptr);

    CommPort& comPort() { return m_comPort; }
    cInBuffer& InBuffer() { return m_inBuffer; }
    /// Bytes that have arrived so far, dropped ones included.
    std::int64_t BytesSeen() const { return m_bytesSeen; }

    /// True if the port is open already or could be opened.
    bool OpenPort(int number, const QString& settings = CommSettings);
    /// Closes the port if it is open.
    void ClosePort();

    /// Sends a command and waits for its reply.
    ///
    /// The command is sent up to `tries` times. After each sending the reader side is given 500 ms;
    /// then the buffer is looked at for `timeout` ms, and a try that brought nothing is followed
    /// by a pause of that length again. A frame whose reply code is not `expected` is passed over,
    /// unless `acceptAny`; a memory frame, which may come late, is passed over in any case. `reply`
    /// becomes the payload: the reply code, then the status byte. gWaitCancelled ends it.
    void WaitFor(int tries, std::uint8_t header1, const QByteArray& data, int timeout,
                 std::uint8_t expected, bool acceptAny, QByteArray& reply, bool& received);

    /// How long a wait lasts: as the time of day says, so that a wait across midnight goes on until
    /// a frame comes; or, if this is set, `timeout` whatever the time of day does.
    bool GivesUpInTime = false;
    /// Ends a wait that lasts longer than its time-out, by setting gWaitCancelled, and gives true.
    /// The caller clears that again once all that waited has come to its end.
    bool EndOverdueWait() const;

    /// From here on a status frame "no reader" is noticed: the reader that is docked now has been
    /// taken out. The watch begins with what the buffer holds.
    void WatchForRemoval();
    bool ReaderWasRemoved();
    /// Pauses until no more than noise arrives: the rest of a memory of which one frame was wanted
    /// has come.
    void AwaitQuietLine();

    /// True if a docking station answers.
    bool DetectStation();
    /// Sets the reader's clock; true if the reader said so.
    bool TxNewDate(std::uint8_t hour, std::uint8_t minute, std::uint8_t dateMsb,
                   std::uint8_t dateLsb);
    /// The same to the minute of a moment. Sends nothing for a date that ClockDateIsUsable refuses.
    bool SetClock(DateTime moment);
    /// The same to the present time.
    bool SetClockToNow();
    /// Sets the reader's option byte (ReaderSignals); true if the reader said so.
    bool TxOptions(std::uint8_t options);
    /// One erase command; `succeeded` if the reader said so. Sends nothing if ReaderWasRemoved.
    void EraseRequest(bool& succeeded);

private:
    void OnComm();

    CommPort m_comPort;
    cInBuffer m_inBuffer;
    std::optional<cInBuffer> m_watched; ///< what has arrived since WatchForRemoval
    std::optional<std::int64_t> m_waitEnd;
    std::int64_t m_bytesSeen = 0;
    bool m_readerRemoved = false;
};

/// False, after a message to the operator, for a date that no reader's clock can be set to: before
/// the year 2000, or after 6 June 2179.
bool ClockDateIsUsable(DateTime moment);

/// The port number of the setting; 1 where that is no number from 1 to 8. Saved again in any case.
int SavedPortNumber();
void SavePortNumber(int number);
