#pragma once

#include "Clock.h"
#include "MemoryImage.h"
#include "cRawButton.h"
#include "colPackets.h"
#include "mWardlock.h"

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

/// What a transfer is for.
enum class TransferPurpose { Touches, Identifier, Firmware };

/// What came of a memory transfer.
struct TransferResult {
    bool OK = false;
    colRawButtons Buttons;
    QString PipeID;        ///< the reader's identifier
    QString tFirmware;     ///< "V" and two hexadecimal digits; empty before the first frame
    QByteArray FirstFrame; ///< the frame that names the reader; empty before it
    /// Whether the memory that was read ends where it should. If not, the reader may hold more.
    ImageEnd End = ImageEnd::Sound;
};

/// Runs one memory read: sends the command, takes the memory frames on a timer and decodes them
/// into touches, in order. For one use only.
///
///     Start --500 ms--> the request is sent, once --> frames, one a tick of 350 ms
///           --> all frames are there: decoded, OK      --> Closed
///           --> no frame for 5000 ms, a fault, Cancel  --> Closed, no touches
///
/// The frames of a memory image carry no number, so a second frame whose first was lost could pass
/// for it: a made-up reader with made-up touches, and an erase that loses the real ones. So an
/// image is believed only if everything in it agrees.
///
/// That of a reader that has been taught: the first frame names that reader, and as many frames
/// come as its count asks for.
///
/// That of any other reader: besides, it begins with a marker, as a reader writes one before its
/// first touch (or it is empty), and it holds exactly as many records as its count says. And the
/// bytes before it that belong to no frame are fewer than half a memory frame: more could be what
/// is left of the real first one.
///
/// Of neither may a further memory frame follow, whole, damaged or only begun. All other noise,
/// before the first frame, between frames and after the last, is no reason to doubt.
///
/// For the identifier or the firmware alone the first frame must do. If it cannot show all records,
/// or has no marker, then no stray byte at all may come before it.
///
/// The watchdog runs from the first byte on, so that only complete silence waits for the operator.
class MemoryTransfer : public QObject {
    Q_OBJECT
public:
    MemoryTransfer(DockingLink& link, TransferView& view);
    ~MemoryTransfer() override;

    bool GetIDMode = false;        ///< stop after the first frame, with the identifier
    bool bFirmwareVersion = false; ///< only the firmware text is wanted
    /// Sets both.
    void SetPurpose(TransferPurpose purpose);

    void Start();
    /// Ends it; nothing is sent to the reader.
    void Cancel();

    bool OK() const { return m_ok; }
    bool IsClosed() const { return m_closed; }
    /// True from the first byte of the answer on.
    bool HasAnswered() const { return m_answered; }
    TransferResult Result() const {
        return {m_ok, m_buttons, m_pipeId, m_firmware, m_firstFrame, m_end};
    }

signals:
    /// Emitted once. The object may be dropped from here on, but not from within.
    void Closed();

private:
    enum PacketResult { Running = 0, Complete = 1, Failed = -1, TransferFault = -2, NoReader = -3 };

    void BeginReading();
    void TakePacket();
    PacketResult ProcessPacket(const QByteArray& frame);
    PacketResult ProcessFirstFrame(const QByteArray& frame);
    static PacketResult ResultOf(FrameStatus status);
    bool MayBeFirst(const QByteArray& frame) const;
    bool FirstFrameMustDo() const { return GetIDMode || bFirmwareVersion; }
    void EndReading();
    bool ImageAgrees();
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
    QByteArray m_firstFrame;
    ImageEnd m_end = ImageEnd::Sound;
    int m_recordCount = 0;
    int m_decoded = 0;
    int m_frameTotal = 0;
    int m_frameCount = 0;
    std::int64_t m_bytesAtStart = 0;
    std::int64_t m_bytesAtRequest = 0;
    int m_lostMemoryFrames = 0; ///< before the first one
    bool m_taught = false;
    bool m_answered = false;
    bool m_ok = false;
    bool m_closed = false;
};
