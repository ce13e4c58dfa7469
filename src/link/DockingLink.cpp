#include "DockingLink.h"

#include "Clock.h"
#include "Format.h"
#include "RunTimeError.h"
#include "Trace.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mSettings.h"
#include "mTranslations.h"
#include "mWardlock.h"

#include <QScopeGuard>

namespace {

const QString PortKey = QStringLiteral("ComPort");

constexpr int AnswerPause = 500; ///< ms for the reader to answer after each command
constexpr int LookAgainPause = 300;
/// A memory stream brings several frames in this time.
constexpr int QuietPause = 1000;
/// The largest memory takes 150 seconds on the line. If the line never rests, the wait ends.
constexpr int MostQuietPauses = 160;

/// The status byte says whether a command succeeded. A reply without one is a failure.
bool Succeeded(const QByteArray& reply, bool received) {
    return received && reply.size() > 1 && reply[1] == 0;
}

QString EventText(int event) {
    switch (event) {
    case CommPort::comEventBreak:
        return QStringLiteral(")  A Break signal was received");
    case CommPort::comEventFrame:
        return QStringLiteral(")  Framing Error. The hardware detected a framing error.");
    case CommPort::comEventOverrun:
        return QStringLiteral(")  Port Overrun. A character was not read from the hardware before "
                              "the next character arrived and was lost.");
    case CommPort::comEventRxOver:
        return QStringLiteral(")  Receive Buffer Overflow. There is no room in the receive buffer");
    case CommPort::comEventRxParity:
        return QStringLiteral(")  Parity Error. The hardware detected a parity error.");
    case CommPort::comEventTxFull:
        return QStringLiteral(")  Transmit Buffer Full. The transmit buffer was full while trying "
                              "to queue a character.");
    case CommPort::comEventDCB:
        return QStringLiteral(")  Unexpected error retrieving Device Control Block (DCB) for the "
                              "port.");
    case CommPort::comEvCTS:
        return QStringLiteral(")  Change in Clear To Send line.");
    case CommPort::comEvDSR:
        return QStringLiteral(")  Change in Data Set Ready line. This event is only fired when DSR "
                              "changes from 1 to 0.");
    case CommPort::comEvEOF:
        return QStringLiteral(")  End Of File (ASCII character 26) character received.");
    default:
        return {};
    }
}

} // namespace

const QString DockingLink::CommSettings = QStringLiteral("9600,n,8,1");

DockingLink::DockingLink(QObject* parent) : QObject(parent) {
    connect(&m_comPort, &CommPort::OnComm, this, &DockingLink::OnComm);
}

void DockingLink::OnComm() {
    const int event = m_comPort.CommEvent();
    if (event == CommPort::comEvReceive)
        Guarded("comPort_OnComm of Form frmMain", [this] { Receive(); });
    else if (const QString text = EventText(event); !text.isEmpty())
        Trace(Format(Now(), QStringLiteral("Hh:Nn:Ss")) +
              QStringLiteral("***!!! CommEvent (%1").arg(event) + text);
}

void DockingLink::Receive() {
    const QByteArray bytes = m_comPort.Input();
    m_bytesSeen += bytes.size();
    if (gCommActive)
        m_inBuffer.Append(bytes);
    if (m_watched)
        m_watched->Append(bytes);
}

bool DockingLink::OpenPort(int number, const QString& settings) {
    if (m_comPort.PortOpen())
        return true;
    const auto open = [&] {
        m_comPort.Number = number;
        m_comPort.Settings = settings;
        m_comPort.SetPortOpen(true);
        m_comPort.Input();
        m_comPort.Output("\r\n");
        m_comPort.Output("\r\n");
        return true;
    };
    return Trapped(open, [&](const RunTimeError& error) { m_openFault = error.Description(); });
}

void DockingLink::ClosePort() {
    if (m_comPort.PortOpen())
        m_comPort.SetPortOpen(false);
}

void DockingLink::WaitFor(int tries, std::uint8_t header1, const QByteArray& data, int timeout,
                          std::uint8_t expected, bool acceptAny, QByteArray& reply,
                          bool& received) {
    received = false;
    const auto converse = [&] {
        gCommActive = true;
        const QByteArray frame =
            BuildPacket(Wire::Header0, header1, Wire::Header2, Wire::Header3, Wire::Header4, data);
        for (int attempt = 0; attempt < tries; ++attempt) {
            if (gWaitCancelled) {
                DoEvents();
                return;
            }
            m_inBuffer.Clear();
            DoEvents();
            if (!m_comPort.PortOpen())
                return;
            m_comPort.Output(frame);
            DoEvents();
            Sleep(AnswerPause);
            DoEvents();
            DoEvents();
            const double start = SecondsOfDay();
            m_waitEnd = MillisecondsRunning() + timeout;
            const auto goesOn = [&] {
                return GivesUpInTime ? MillisecondsRunning() < *m_waitEnd
                                     : SecondsOfDay() - start < timeout / 1000.0;
            };
            while (!gWaitCancelled && goesOn()) {
                QByteArray packet;
                bool found = false;
                m_inBuffer.GetPacket(packet, found);
                if (!found) {
                    Trace(QStringLiteral("?  No packets in buffer"));
                    Sleep(LookAgainPause);
                    DoEvents();
                } else if (!IsMemoryLong(packet) &&
                           (acceptAny || ByteAt(packet, Wire::PayloadOffset) == expected)) {
                    m_inBuffer.Clear();
                    reply = packet.mid(Wire::PayloadOffset).chopped(1);
                    gCommActive = false;
                    received = true;
                    return;
                } else {
                    Trace(QStringLiteral("Didnt want that, look for more"));
                }
            }
            m_waitEnd.reset();
            DoEvents();
            if (!gWaitCancelled)
                Sleep(timeout);
        }
        gCommActive = false;
    };
    Trapped(converse, [](const RunTimeError& error) {
        gCommActive = false;
        Trace(QStringLiteral("** Error in WaitFor! ") + error.Description());
    });
    m_waitEnd.reset();
}

bool DockingLink::EndOverdueWait() const {
    // A wait that ends in time may end one look late.
    const bool overdue = m_waitEnd && MillisecondsRunning() > *m_waitEnd + LookAgainPause;
    if (overdue)
        gWaitCancelled = true;
    return overdue;
}

void DockingLink::WatchForRemoval() {
    m_watched = m_inBuffer;
    m_readerRemoved = false;
}

bool DockingLink::ReaderWasRemoved() {
    for (qsizetype before = -1; m_watched && before != m_watched->Buffer().size();) {
        before = m_watched->Buffer().size();
        QByteArray frame;
        bool received = false;
        m_watched->DropBrokenFrame();
        m_watched->GetPacket(frame, received);
        m_readerRemoved = m_readerRemoved || StatusOf(frame) == FrameStatus::NoReader;
    }
    return m_readerRemoved;
}

void DockingLink::AwaitQuietLine() {
    m_waitEnd = MillisecondsRunning(); // so that a window can be closed during the pauses
    const auto ended = qScopeGuard([this] { m_waitEnd.reset(); });
    for (int pause = 0; pause < MostQuietPauses; ++pause) {
        DoEvents();
        const std::int64_t seen = m_bytesSeen;
        Sleep(QuietPause);
        DoEvents();
        if (m_bytesSeen - seen <= Wire::MostNoise || gWaitCancelled)
            return;
    }
}

bool DockingLink::DetectStation() {
    gCommActive = true;
    m_inBuffer.Clear();
    QByteArray reply;
    bool received = false;
    WaitFor(1, Wire::Header1, CmdDetect(), 900, Wire::ReplyDetect, false, reply, received);
    return received;
}

bool DockingLink::TxNewDate(std::uint8_t hour, std::uint8_t minute, std::uint8_t dateMsb,
                            std::uint8_t dateLsb) {
    QByteArray reply;
    bool received = false;
    WaitFor(3, Wire::Header1, CmdSetClock(hour, minute, dateMsb, dateLsb), 1200, Wire::ReplyClock,
            false, reply, received);
    return Succeeded(reply, received);
}

bool DockingLink::SetClock(DateTime moment) {
    if (!HasDateCode(moment))
        return false;
    const QTime time = moment.ToQTime();
    const std::uint16_t code = DateCodeOf(moment);
    return TxNewDate(static_cast<std::uint8_t>(time.hour()),
                     static_cast<std::uint8_t>(time.minute()),
                     static_cast<std::uint8_t>(code / 256), static_cast<std::uint8_t>(code % 256));
}

bool DockingLink::SetClockToNow() {
    const DateTime now = Now();
    const std::uint16_t code = DateCodeOf(now);
    Trace(QStringLiteral("Auto-setting date code to ") +
          Hex00(static_cast<std::uint8_t>(code / 256)) +
          Hex00(static_cast<std::uint8_t>(code % 256)) + QStringLiteral(" = "));
    return SetClock(now);
}

bool DockingLink::TxOptions(std::uint8_t options) {
    QByteArray reply;
    bool received = false;
    WaitFor(3, Wire::Header1, CmdSetOptions(options), 900, Wire::ReplyOptions, true, reply,
            received);
    return Succeeded(reply, received);
}

void DockingLink::EraseRequest(bool& succeeded) {
    gCommActive = true;
    m_inBuffer.Clear();
    DoEvents();
    Sleep(AnswerPause);
    DoEvents();
    QByteArray reply;
    bool received = false;
    if (!ReaderWasRemoved())
        WaitFor(1, Wire::Header1, CmdEraseMemory(), 1500, Wire::ReplyMemory, false, reply,
                received);
    succeeded = Succeeded(reply, received);
    gCommActive = false;
}

bool ClockDateIsUsable(DateTime moment) {
    if (HasDateCode(moment))
        return true;
    IvMessageBox(Translate("The reader's clock can only be set to a date from 1 January 2000 to 6 "
                           "June 2179. It was not set."));
    return false;
}

int SavedPortNumber() {
    int number = SavedNumber(SettingsSection::ComPort, PortKey, 1);
    if (number < 1 || number > 8)
        number = 1;
    SavePortNumber(number);
    return number;
}

void SavePortNumber(int number) {
    SaveSetting(SettingsApplication, SettingsSection::ComPort, PortKey, QString::number(number));
}
