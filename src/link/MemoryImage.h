#pragma once

#include "cRawButton.h"
#include "colPackets.h"

#include <QHash>

#include <functional>

/// A reader's memory image: records of four bytes, spread over the frames of a transfer.

/// The number of frames for an image of `recordCount` records: 58 records in the first frame, 60 in
/// each further one. At least 1.
int FramesFor(int recordCount);

/// The record count in the first memory frame, a signed number. Below zero, there is no valid
/// memory.
int RecordCountOf(const QByteArray& firstFrame);
/// The identifier in the first memory frame: eight upper-case hexadecimal digits, in the order in
/// which they are stored.
QString ReaderIdOf(const QByteArray& firstFrame);
/// "V" and two hexadecimal digits; "VFF" if the reader does not give its version.
QString FirmwareTextOf(const QByteArray& firstFrame);
/// False for "VFF", and for the empty text of a transfer without a frame.
bool NamesFirmware(const QString& firmwareText);

/// True if the image's first record is a marker.
bool BeginsWithMarker(const QByteArray& firstFrame);
/// The number of records up to the last one that is not all zeros. Markers count, and so does an
/// end mark before it.
int RecordsIn(const colPackets& packets);

/// Whether an image ends where it should.
enum class ImageEnd {
    Sound,
    DataAfterEndMark, ///< there are bytes other than zero after the end mark
    CountDisagrees,   ///< fewer records than the count says, or more without an end mark
};
ImageEnd EndOf(const colPackets& packets, int recordCount);

/// True if the first frame has a count of 0 and holds no records.
bool IsEmptyImage(const QByteArray& firstFrame);
/// True if two first frames have the same reader, count and records.
bool TellTheSame(const QByteArray& firstFrame, const QByteArray& other);

/// The definitions of buttons. Each code is looked up in the store only once.
class ButtonDirectory {
public:
    /// A touch of that button, without a time. If no button has the code, or more than one, it is
    /// an unknown button; that is not an error. Throws RunTimeError.
    const cRawButton& LookUpButtonData(const QString& code);

private:
    QHash<QString, cRawButton> m_known;
};

/// Decodes the frames up to the end mark or the last frame. Calls `decoded` after each touch.
/// Throws RunTimeError if a look-up fails.
colRawButtons DecodeImage(const colPackets& packets, ButtonDirectory& directory,
                          const std::function<void()>& decoded = {});
