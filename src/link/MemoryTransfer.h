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
    /// `value` is always between 0 and `maximum`.
    virtual void ShowProgress(int value, int maximum) = 0;
    virtual void ShowProgressText(const QString& text) = 0;
    virtual void Beep() = 0;
};

/// What a transfer is for.
enum class TransferPurpose { Touches, Identifier, Firmware };

/// The result of a memory transfer.
struct TransferResult {
    bool OK = false;
    colRawButtons Buttons;
    QString PipeID;        ///< the reader's identifier
    QString tFirmware;     ///< "V" and two hexadecimal digits; empty before the first frame
    QByteArray FirstFrame; ///< the frame with the reader's identifier; empty before it
    /// If the memory did not end where it should, the reader may hold more.
    ImageEnd End = ImageEnd::Sound;
};

/// Reads a reader's memory: sends the command, takes the memory frames on a timer and decodes them
/// into touches, in order. Each object is used once.
///
///     Start --500 ms--> the request is sent, once --> frames, one in each tick of 350 ms
///           --> all frames are there: decoded, OK      --> Closed
///           --> no frame for 5000 ms, a fault, Cancel  --> Closed, no touches
///
/// The frames of a memory image have no number. If the first frame is lost, the second could be
/// taken for it: a reader and touches that do not exist, and then an erase that loses the real
/// ones. So an image is believed only if everything in it agrees:
///
/// - For a reader that has been taught, the first frame must have its identifier, and as many
///   frames must come as its count says.
/// - For any other reader, the image must also begin with a marker, because a reader writes one
///   before its first touch (or it must be empty). It must hold exactly as many records as its
///   count says. And the bytes before it that belong to no frame must be fewer than half a memory
///   frame, because more could be the rest of the real first frame.
/// - In both cases no further memory frame may follow, whether whole, damaged or incomplete. All
///   other noise, before, between or after the frames, does not matter.
///
/// If only the identifier or the firmware is wanted, the first frame must be enough. If that frame
/// does not hold all records, or has no marker, no stray byte at all may come before it.
///
/// The watchdog runs from the first byte on. Only if nothing at all arrives does the transfer wait
/// until the operator cancels it.
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
    /// Ends the transfer. Nothing is sent to the reader.
    void Cancel();

    bool OK() const { return m_ok; }
    bool IsClosed() const { return m_closed; }
    /// True from the first byte of the answer on.
    bool HasAnswered() const { return m_answered; }
    TransferResult Result() const {
        return {m_ok, m_buttons, m_pipeId, m_firmware, m_firstFrame, m_end};
    }

signals:
    /// Emitted once. A slot must not delete the object, but it may be deleted afterwards.
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
    void StopTimers();
    void EndReading();
    bool ImageAgrees();
    bool StreamHasEnded();
    bool ProcessData();
    void ShowProgress(int value, int maximum);
    void Finish();
    void FailWithoutStation();
    /// The image is not believed.
    void FailWithDoubt();
    void Fail(const QString& text, const QString& advice);
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
