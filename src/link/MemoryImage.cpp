#include "MemoryImage.h"

#include "Format.h"
#include "LookUps.h"
#include "Trace.h"
#include "mTranslations.h"
#include "mWardlock.h"

#include <algorithm>

namespace {

struct Record {
    std::uint8_t b0, b1, b2, b3;

    bool IsEndMark() const { return b0 == 0 && b1 == 0 && b2 == 0 && b3 == 0; }
};

Record RecordAt(const QByteArray& frame, int at) {
    return {ByteAt(frame, at), ByteAt(frame, at + 1), ByteAt(frame, at + 2), ByteAt(frame, at + 3)};
}

/// Visits the records of the frames in order, until `visit` gives false.
void ForEachRecord(const colPackets& packets, const std::function<bool(const Record&)>& visit) {
    for (const cPacket& packet : packets) {
        const QByteArray& frame = packet.RawData;
        const int start = packet.Tag == 1 ? Wire::FirstRecordOffset : Wire::RecordOffset;
        const int records = (static_cast<int>(frame.size()) - 1 - start) / Wire::RecordBytes;
        for (int i = 0; i < records; ++i)
            if (!visit(RecordAt(frame, start + i * Wire::RecordBytes)))
                return;
    }
}

/// What the frames hold, including what follows the end mark.
struct Extent {
    int decoded = 0; ///< records before the end mark
    int last = 0;    ///< number of the last record that is not all zeros
    bool endMark = false;
};

Extent ExtentOf(const colPackets& packets) {
    Extent extent;
    int number = 0;
    ForEachRecord(packets, [&](const Record& record) {
        ++number;
        if (record.IsEndMark())
            extent.endMark = true;
        else
            extent.last = number;
        extent.decoded += !extent.endMark;
        return true;
    });
    return extent;
}

} // namespace

int FramesFor(int recordCount) {
    const int afterFirst = std::max(0, recordCount - Wire::FirstFrameRecords);
    return 1 + (afterFirst + Wire::FrameRecords - 1) / Wire::FrameRecords;
}

int RecordCountOf(const QByteArray& firstFrame) {
    const int low = ByteAt(firstFrame, Wire::CountOffset);
    const int high = ByteAt(firstFrame, Wire::CountOffset + 1);
    return static_cast<std::int16_t>(high * 256 + low);
}

QString ReaderIdOf(const QByteArray& firstFrame) {
    const auto digits = [&](int index) {
        return Hex00(ByteAt(firstFrame, Wire::IdentifierOffset + index));
    };
    return digits(2) + digits(3) + digits(1) + digits(0);
}

QString FirmwareTextOf(const QByteArray& firstFrame) {
    return u'V' + Hex00(ByteAt(firstFrame, Wire::FirmwareOffset));
}

bool NamesFirmware(const QString& firmwareText) {
    return !firmwareText.isEmpty() && firmwareText != u"VFF";
}

const cRawButton& ButtonDirectory::LookUpButtonData(const QString& code) {
    const auto known = m_known.constFind(code);
    if (known != m_known.constEnd())
        return *known;
    cRawButton button;
    button.ButtonCode = code;
    button.Name = Translate("Unknown");
    if (const std::optional<ButtonData> data = FindButton(code)) {
        button.EventType = data->groupType;
        button.Name = data->name;
        button.Description = data->description;
        button.GroupName = data->groupName;
        button.GroupDesc = data->groupDescription;
    }
    return *m_known.insert(code, button);
}

bool BeginsWithMarker(const QByteArray& firstFrame) {
    return ByteAt(firstFrame, Wire::FirstRecordOffset + 3) == Wire::MarkerByte;
}

int RecordsIn(const colPackets& packets) { return ExtentOf(packets).last; }

ImageEnd EndOf(const colPackets& packets, int recordCount) {
    const Extent extent = ExtentOf(packets);
    if (extent.last > extent.decoded)
        return ImageEnd::DataAfterEndMark;
    // More records than the count says are fine only if an end mark follows them. Without one, the
    // frames may not hold them all.
    const bool agrees =
        extent.decoded == recordCount || (extent.decoded > recordCount && extent.endMark);
    return agrees ? ImageEnd::Sound : ImageEnd::CountDisagrees;
}

bool IsEmptyImage(const QByteArray& firstFrame) {
    colPackets alone;
    alone.Add(firstFrame).Tag = 1;
    return RecordCountOf(firstFrame) == 0 && RecordsIn(alone) == 0;
}

bool TellTheSame(const QByteArray& firstFrame, const QByteArray& other) {
    const auto countAndReader = [](const QByteArray& frame) {
        return frame.mid(Wire::CountOffset, Wire::FirmwareOffset - Wire::CountOffset);
    };
    const auto records = [](const QByteArray& frame) {
        return frame.mid(Wire::FirstRecordOffset).chopped(1);
    };
    return countAndReader(firstFrame) == countAndReader(other) &&
           records(firstFrame) == records(other);
}

colRawButtons DecodeImage(const colPackets& packets, ButtonDirectory& directory,
                          const std::function<void()>& decoded) {
    colRawButtons touches;
    // A touch before the first marker is on the zero date.
    DateTime date;
    int hour = 0;
    ForEachRecord(packets, [&](const Record& record) {
        if (record.IsEndMark())
            return false;
        if (record.b3 == Wire::MarkerByte) {
            hour = std::min<int>(record.b0, 23);
            date = DateTime::FromDays(DecodeDateCode(record.b2, record.b1));
            Trace(QStringLiteral("Rx date = ") + Hex00(record.b1) + Hex00(record.b2));
            Trace(QStringLiteral("*Decoded event date = ") +
                  Format(date, QStringLiteral("Medium Date")));
            return true;
        }
        const QString code = Hex00(record.b2) + Hex00(record.b1) + Hex00(record.b0);
        cRawButton touch = directory.LookUpButtonData(code);
        touch.DateAndTime = date + DateTime::FromTime(hour, std::min<int>(record.b3, 59));
        touches.push_back(std::move(touch));
        if (decoded)
            decoded();
        return true;
    });
    return touches;
}
