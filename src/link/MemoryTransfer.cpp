#include "MemoryTransfer.h"

#include "DockingLink.h"
#include "Format.h"
#include "LookUps.h"
#include "MemoryImage.h"
#include "Trace.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "mWardlock.h"

#include <algorithm>

namespace {

constexpr int StartInterval = 500;
constexpr int PacketInterval = 350;
constexpr int WatchdogInterval = 5000;

/// The identifier that results if the empty end of an image is taken for a first frame.
const QString NoReaderId = QStringLiteral("00000000");
/// The record count of a reader without valid memory.
constexpr int NoValidMemory = -1;

QString Percent(int part, int whole, const char* pattern) {
    return Format((part * 100LL + whole / 2) / whole, QString::fromLatin1(pattern)) + u'%';
}

} // namespace

MemoryTransfer::MemoryTransfer(DockingLink& link, TransferView& view)
    : m_link(link), m_view(view), m_tmrStart(StartInterval), m_tmrGetPackets(PacketInterval),
      m_tmrTimeout(WatchdogInterval) {
    connect(&m_tmrStart, &Timer::Tick, this, &MemoryTransfer::BeginReading);
    connect(&m_tmrGetPackets, &Timer::Tick, this, &MemoryTransfer::TakePacket);
    connect(&m_tmrTimeout, &Timer::Tick, this, [this] {
        Fail(Translate("Download Error"),
             Translate("The reader stopped answering. Leave it in the docking station until the "
                       "download is complete, and try again."));
    });
}

MemoryTransfer::~MemoryTransfer() = default;

void MemoryTransfer::SetPurpose(TransferPurpose purpose) {
    GetIDMode = purpose == TransferPurpose::Identifier;
    bFirmwareVersion = purpose == TransferPurpose::Firmware;
}

void MemoryTransfer::Start() {
    m_bytesAtStart = m_link.BytesSeen();
    m_tmrStart.SetEnabled(true);
}

void MemoryTransfer::BeginReading() {
    m_tmrStart.SetEnabled(false);
    if (!bFirmwareVersion)
        m_view.ShowText(Translate("Downloading data from reader"));
    m_view.ShowWarning(true);
    DoEvents();
    Sleep(800);
    DoEvents();
    if (m_closed)
        return;
    m_bytesAtRequest = m_link.BytesSeen();
    if (m_bytesAtRequest != m_bytesAtStart) { // may be the answer to an earlier request
        m_answered = true;
        m_tmrTimeout.SetEnabled(true);
    }
    m_tmrGetPackets.SetEnabled(true);
    gCommActive = true;
    Trapped(
        [this] {
            const QByteArray frame = BuildPacket(Wire::Header0, Wire::Header1, Wire::Header2,
                                                 Wire::Header3, Wire::Header4, CmdReadMemory());
            m_link.InBuffer().Clear();
            m_link.comPort().Output(frame);
        },
        [this](const RunTimeError& error) {
            Trace(error.Description());
            FailWithoutStation();
        });
}

void MemoryTransfer::TakePacket() {
    DoEvents();
    if (m_closed)
        return;
    if (!m_answered && m_link.BytesSeen() != m_bytesAtRequest) {
        m_answered = true;
        m_tmrTimeout.SetEnabled(true);
    }
    QByteArray frame;
    bool received = false;
    m_link.InBuffer().DropBrokenFrame();
    m_link.InBuffer().GetPacket(frame, received);
    if (!received) {
        if (!m_link.comPort().PortOpen()) // the dock was unplugged, and all it sent has been read
            FailWithoutStation();
        return;
    }
    Trace(BytesToHex(frame));
    const PacketResult result = ProcessPacket(frame);
    ShowProgress(m_frameCount, m_frameTotal);
    if (m_frameTotal > 0)
        m_view.ShowProgressText(Percent(m_frameCount, m_frameTotal, "0"));
    switch (result) {
    case NoReader:
        Fail(Translate("Reader not detected. Check reader and try again."),
             Translate("Put the reader into the docking station so that it sits firmly."));
        break;
    case TransferFault:
        Fail(Translate("Download Error") + QStringLiteral(" (002)"),
             Translate("The docking station could not read the reader. Take it out, put it in "
                       "again, and try once more."));
        break;
    case Failed:
        FailWithDoubt();
        break;
    case Running:
        m_tmrTimeout.SetEnabled(false);
        DoEvents();
        if (!m_closed)
            m_tmrTimeout.SetEnabled(true);
        break;
    case Complete:
        EndReading();
        break;
    }
}

MemoryTransfer::PacketResult MemoryTransfer::ProcessPacket(const QByteArray& frame) {
    if (!IsMemoryLong(frame))
        return ResultOf(StatusOf(frame));
    if (ByteAt(frame, Wire::PayloadOffset) != Wire::ReplyMemory)
        return Running;
    ++m_frameCount;
    if (m_frameCount == 1) {
        const PacketResult result = ProcessFirstFrame(frame);
        if (result != Running)
            return result;
    }
    m_packets.Add(frame).Tag = m_frameCount;
    Trace(Format(m_frameCount, QStringLiteral("000")) + u' ' + BytesToHex(frame));
    return m_frameCount == m_frameTotal ? Complete : Running;
}

bool MemoryTransfer::MayBeFirst(const QByteArray& frame) const {
    if (m_taught)
        return true;
    const std::int64_t noise = m_bytesAtRequest - m_bytesAtStart + m_link.InBuffer().Lost();
    if (ReaderIdOf(frame) == NoReaderId || noise > Wire::MostNoise)
        return false;
    const int count = RecordCountOf(frame);
    if (count < 0)
        return count == NoValidMemory && noise == 0;
    const bool marker = count == 0 || BeginsWithMarker(frame);
    // Nothing is stored or erased if only the identifier or the firmware is read.
    if (FirstFrameMustDo() && noise == 0 && marker)
        return true;
    colPackets alone;
    alone.Add(frame).Tag = 1;
    const bool holdsAll = count <= Wire::FirstFrameRecords;
    if (RecordsIn(alone) != std::min(count, Wire::FirstFrameRecords) &&
        (holdsAll || FirstFrameMustDo()))
        return false;
    if (FirstFrameMustDo())
        return holdsAll && (marker || noise == 0);
    return marker;
}

MemoryTransfer::PacketResult MemoryTransfer::ProcessFirstFrame(const QByteArray& frame) {
    const QString readerId = ReaderIdOf(frame);
    IgnoringErrors([&] { m_taught = FindReader(readerId).has_value(); });
    if (!MayBeFirst(frame))
        return Failed;
    m_firmware = FirmwareTextOf(frame);
    if (bFirmwareVersion && m_firmware == u"V08") // two names for one version
        m_firmware = QStringLiteral("V06");
    m_pipeId = readerId;
    m_firstFrame = frame;
    m_lostMemoryFrames = m_link.InBuffer().LostMemoryFrames();
    m_recordCount = RecordCountOf(frame);
    if (m_recordCount == NoValidMemory)
        return Failed;
    if (GetIDMode)
        return Complete;
    if (m_recordCount < 0) // no memory can be this long
        return Failed;
    m_view.ShowReaderId(m_pipeId);
    m_frameTotal = FramesFor(m_recordCount);
    return Running;
}

MemoryTransfer::PacketResult MemoryTransfer::ResultOf(FrameStatus status) {
    switch (status) {
    case FrameStatus::TransferFault:
        return TransferFault;
    case FrameStatus::NoReader:
        return NoReader;
    case FrameStatus::None:
        break;
    }
    return Running;
}

void MemoryTransfer::StopTimers() {
    m_tmrStart.SetEnabled(false);
    m_tmrGetPackets.SetEnabled(false);
    m_tmrTimeout.SetEnabled(false);
}

void MemoryTransfer::EndReading() {
    m_link.WatchForRemoval();
    m_view.ShowText(Translate("Download Completed"));
    DoEvents();
    if (m_closed)
        return;
    if (FirstFrameMustDo()) {
        Finish();
        return;
    }
    StopTimers();
    DoEvents();
    Sleep(500);
    DoEvents();
    if (m_closed)
        return;
    if (!ImageAgrees()) {
        FailWithDoubt();
        return;
    }
    const bool processed = ProcessData();
    if (m_closed)
        return;
    if (processed)
        Finish();
    else
        Fail(Translate("Download Error"),
             Translate("The names of the buttons could not be read from the database. See "
                       "error.log for the reason."));
}

bool MemoryTransfer::ImageAgrees() {
    m_end = EndOf(m_packets, m_recordCount);
    return StreamHasEnded() && (m_taught || RecordsIn(m_packets) == m_recordCount);
}

bool MemoryTransfer::StreamHasEnded() {
    cInBuffer& buffer = m_link.InBuffer();
    // A call that gives no frame may have dropped a bad one, and another may follow it.
    for (qsizetype before = -1; before != buffer.Buffer().size();) {
        before = buffer.Buffer().size();
        QByteArray frame;
        bool received = false;
        buffer.DropBrokenFrame();
        buffer.GetPacket(frame, received);
        if (received && IsMemoryLong(frame))
            return false;
    }
    return buffer.LostMemoryFrames() == m_lostMemoryFrames && !buffer.AwaitsMemoryFrame();
}

bool MemoryTransfer::ProcessData() {
    return Guarded("ProcessData of Form frmDownload", [this] {
        m_recordCount = std::max(m_recordCount, 1);
        m_view.ShowText(Translate("Processing Data"));
        ShowProgress(0, m_recordCount);
        DoEvents();
        Sleep(200);
        ButtonDirectory directory;
        m_buttons = DecodeImage(m_packets, directory, [this] {
            ++m_decoded;
            ShowProgress(m_decoded, m_recordCount);
            m_view.ShowProgressText(Percent(m_frameCount, m_frameTotal, "00"));
        });
        ShowProgress(m_recordCount, m_recordCount);
        m_view.ShowProgressText(QStringLiteral("100%"));
        DoEvents();
        Sleep(400);
        DoEvents();
        return true;
    });
}

void MemoryTransfer::ShowProgress(int value, int maximum) {
    m_view.ShowProgress(std::min(value, maximum), maximum);
}

void MemoryTransfer::Finish() {
    m_view.ShowWarning(false);
    m_ok = true;
    m_view.Beep();
    Close();
}

void MemoryTransfer::FailWithoutStation() {
    Fail(Translate("Download Error"),
         Translate("The connection to the docking station was lost. Check its cable and try "
                   "again."));
}

void MemoryTransfer::FailWithDoubt() {
    Fail(Translate("Download Error"),
         Translate("What the reader sent was not complete or not valid. Please try again."));
}

void MemoryTransfer::Fail(const QString& text, const QString& advice) {
    if (m_closed)
        return;
    m_view.ShowWarning(false);
    StopTimers();
    DoEvents();
    if (m_closed)
        return;
    m_view.Beep();
    m_buttons.clear();
    IvMessageBox(text, FirstFrameMustDo()
                           ? advice
                           : advice + u'\n' + Translate("All touches are still in the reader."));
    m_ok = false;
    Close();
}

void MemoryTransfer::Cancel() {
    if (m_closed)
        return;
    m_ok = false;
    Close();
}

void MemoryTransfer::Close() {
    if (m_closed)
        return;
    m_closed = true;
    StopTimers();
    gCommActive = false;
    emit Closed();
}
