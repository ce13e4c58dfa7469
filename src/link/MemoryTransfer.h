#pragma once

#include "Clock.h"
#include "cRawButton.h"
#include "colPackets.h"

#include <QObject>
#include <QString>

class DockingLink;

/// What a memory transfer shows while it runs. All texts are translated already.
class TransferView {
public:
    virtual ~TransferView() = default;
    virtual void ShowText(const QString& text) = 0;
    virtual void ShowReaderId(const QString& readerId) = 0;
    virtual void ShowWarning(bool visible) = 0;
    /// `value` always lies from 0 to `maximum`.
    virtual void ShowProgress(int value, int maximum) = 0;
    virtual void ShowProgressText(const QString& text) = 0;
    virtual void Beep() = 0;
};

/// What came of a memory transfer.
struct TransferResult {
    bool OK = false;
    colRawButtons Buttons;
    QString PipeID;    ///< the reader's identifier
    QString tFirmware; ///< "V" and two hexadecimal digits; empty before the first frame
};

/// Runs one memory read: sends the command, takes the memory frames on a timer and decodes them
/// into touches, in order. For one use only.
///
///     Start --500 ms--> the request is sent, once --> frames, one a tick of 350 ms
///           --> all frames are there: decoded, OK      --> Closed
///           --> no frame for 5000 ms, a fault, Cancel  --> Closed, no touches
///
/// The frames of a memory image carry no number, so a lost first frame would let the second pass
/// for it: a made-up reader with made-up touches, and an erase behind. So a first frame is believed
/// if it names a reader that has been taught. That of another reader is believed only if
///
/// - the line was quiet when the request was sent, and no byte came in front of the frame, and
/// - its first record is a marker, as a reader writes one before its first touch, or else the image
///   turns out to hold just as many records as its count says (for the identifier alone: the first
///   frame holds all of them).
///
/// And nothing but status frames may follow the last frame. The watchdog runs from the first byte
/// on, so that only complete silence waits for the operator.
class MemoryTransfer : public QObject {
    Q_OBJECT
public:
    MemoryTransfer(DockingLink& link, TransferView& view);
    ~MemoryTransfer() override;

    bool GetIDMode = false;        ///< stop after the first frame, with the identifier
    bool bFirmwareVersion = false; ///< only the firmware text is wanted

    void Start();
    /// Ends it; nothing is sent to the reader.
    void Cancel();

    bool OK() const { return m_ok; }
    bool IsClosed() const { return m_closed; }
    /// True from the first byte of the answer on.
    bool HasAnswered() const { return m_answered; }
    TransferResult Result() const { return {m_ok, m_buttons, m_pipeId, m_firmware}; }

signals:
    /// Emitted once. The object may be dropped from here on, but not from within.
    void Closed();

private:
    /// What tells that the first frame is the first.
    enum class Evidence { None, Count, Sure };
    enum PacketResult { Running = 0, Complete = 1, Failed = -1, TransferFault = -2, NoReader = -3 };

    void BeginReading();
    void TakePacket();
    PacketResult ProcessPacket(const QByteArray& frame);
    PacketResult ProcessFirstFrame(const QByteArray& frame);
    static PacketResult StatusOf(const QByteArray& frame);
    Evidence EvidenceOf(const QByteArray& firstFrame) const;
    void EndReading();
    bool StreamHasEnded();
    bool ProcessData();
    void ShowProgress(int value, int maximum);
    void Finish();
    void Fail(const QString& text);
    void Close();

    DockingLink& m_link;
    TransferView& m_view;
    Timer m_tmrStart;
    Timer m_tmrGetPackets;
    Timer m_tmrTimeout;

    colPackets m_packets;
    colRawButtons m_buttons;
    QString m_pipeId;
    QString m_firmware;
    int m_recordCount = 0;
    int m_decoded = 0;
    int m_frameTotal = 0;
    int m_frameCount = 0;
    std::int64_t m_bytesAtStart = 0;
    std::int64_t m_bytesAtRequest = 0;
    bool m_lineWasBusy = false;
    Evidence m_evidence = Evidence::None;
    bool m_answered = false;
    bool m_ok = false;
    bool m_closed = false;
};
