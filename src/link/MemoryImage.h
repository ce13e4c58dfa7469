#pragma once

#include "cRawButton.h"
#include "colPackets.h"

#include <QHash>

#include <functional>

/// Decoding of a reader's memory image: records of four bytes, laid over the frames of a transfer.

/// Frames that an image of so many records takes: 58 records in the first, 60 in each further, and
/// at least one.
int FramesFor(int recordCount);

/// The record count of the first memory frame, a signed number. Below zero there is no valid
/// memory.
int RecordCountOf(const QByteArray& firstFrame);
/// The identifier in the first memory frame, eight upper-case hexadecimal digits in the order in
/// which the store holds them.
QString ReaderIdOf(const QByteArray& firstFrame);
/// "V" and two hexadecimal digits; "VFF" where the reader does not tell.
QString FirmwareTextOf(const QByteArray& firstFrame);
/// False for "VFF", and for the empty text of a transfer that got no frame.
bool NamesFirmware(const QString& firmwareText);

/// True if the image's first record is a marker.
bool BeginsWithMarker(const QByteArray& firstFrame);
/// Records up to the last that is not all zeros; markers count, and an end mark before it does.
int RecordsIn(const colPackets& packets);

/// Whether an image ends where it should.
enum class ImageEnd {
    Sound,
    DataAfterEndMark, ///< bytes other than zero stand after the end mark
    CountDisagrees,   ///< fewer records than the count says, or more and no end mark
};
ImageEnd EndOf(const colPackets& packets, int recordCount);

/// True if the first frame says that there are no records, and holds none.
bool IsEmptyImage(const QByteArray& firstFrame);
/// True if two first frames name the same reader and hold the same count and records.
bool TellTheSame(const QByteArray& firstFrame, const QByteArray& other);

/// What is known of buttons, looked up in the store once a code.
class ButtonDirectory {
public:
    /// A touch of that button, without a time. A code that no button, or more than one, has gives
    /// an unknown button, which is no error. Throws RunTimeError.
    const cRawButton& LookUpButtonData(const QString& code);

private:
    QHash<QString, cRawButton> m_known;
};

/// Decodes the frames, up to the end mark or the end of the frames. `decoded` is called after each
/// touch. Throws what the look-up throws.
colRawButtons DecodeImage(const colPackets& packets, ButtonDirectory& directory,
                          const std::function<void()>& decoded = {});
