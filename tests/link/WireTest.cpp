// The wire format, the receive buffer and the decoding of memory images.

#include "LinkTestTools.h"
#include "MemoryImage.h"
#include "RunTimeError.h"
#include "cInBuffer.h"
#include "mWardlock.h"

namespace {

const QByteArray Good = FrameOf(Hex("8000"));
const QByteArray Other = FrameOf(Hex("F30102"));
const QByteArray Bad = Good.chopped(1) + '\x11';
const QByteArray Junk = Hex("000155AAFF01FFFF02");

colRawButtons Decode(const QByteArrayList& frames) {
    colPackets packets;
    int number = 0;
    for (const QByteArray& frame : frames)
        packets.Add(frame).Tag = ++number;
    ButtonDirectory directory;
    return DecodeImage(packets, directory);
}

QString Text(const colRawButtons& touches) {
    QStringList texts;
    for (const cRawButton& touch : touches)
        texts += TouchText(touch.ButtonCode, touch.DateAndTime);
    return texts.join(u',');
}

} // namespace

class WireTest : public QObject {
    Q_OBJECT

    TestHome m_home{TestHome::DemoSite};

private slots:
    // The header bytes and the length together must fit one byte.
    void LongPayloads() {
        ScriptedBoxes boxes;
        const auto build = [](qsizetype size) {
            return BuildPacket(0x03, 0x01, 0x03, 0x51, 0x00, QByteArray(size, '\x80'));
        };
        QCOMPARE(build(167), FrameOf(QByteArray(167, '\x80')));
        for (const qsizetype size : {168, 255, 256})
            QVERIFY_THROWS_EXCEPTION(RunTimeError, build(size));
        QVERIFY(boxes.Messages.isEmpty());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, build(257));
        QCOMPARE(boxes.TakeTexts(), {"Illegal value in Build packet : Data too long"});
    }

    void DateCodes() {
        QCOMPARE(DateCodeOf(DateTime::FromQt(QDate(2000, 1, 1))), 0);
        QCOMPARE(DateCodeOf(DateTime::FromQt(QDate(2000, 1, 2)) + DateTime::FromTime(23, 59, 59)),
                 1);
        QCOMPARE(DateTime::FromDays(DecodeDateCode(0xFF, 0xFF)).ToQDate(), QDate(2179, 6, 6));
        QVERIFY(!HasDateCode(DateTime::FromQt(QDate(1999, 12, 31))));
        QVERIFY(!HasDateCode(DateTime::FromQt(QDate(2179, 6, 7))));
        for (int code = 0; code <= 0xFFFF; ++code)
            QCOMPARE(DateCodeOf(DateTime::FromDays(DecodeDateCode(code / 256, code % 256))), code);
    }

    void RecordCounts() {
        const QMap<int, int> framesOf{{-32768, 1}, {-1, 1},  {0, 1},   {58, 1},  {59, 2},
                                      {118, 2},    {119, 3}, {178, 3}, {179, 4}, {32767, 547}};
        for (auto count = framesOf.cbegin(); count != framesOf.cend(); ++count) {
            QCOMPARE(FramesFor(count.key()), count.value());
            QCOMPARE(RecordCountOf(ImageFrames(count.key(), {}, 1).first()), count.key());
        }
    }

    // One packet is taken after each chunk, "" if there is none. A chunk of "" adds no bytes.
    void Buffer_data() {
        const TestTable<QByteArrayList, QByteArrayList, QByteArray, qsizetype> row(
            "chunks", "packets", "left", "lost");
        const qsizetype junk = Junk.size();
        row("junk stays", {Junk}, {""}, Junk, 0);
        row("four preamble bytes", {'\xFF' + Good, ""}, {"", Good}, {}, 1);
        row("preamble without sync", {Hex("FFFFFF00") + Good, ""}, {"", Good}, {}, 4);
        row("junk, frame, two bytes", {Junk + Good + "ab"}, {Good}, "ab", junk);
        row("junk, frame, one byte", {Junk + Good + "a"}, {Good}, {}, junk + 1);
        row("that byte begins a frame", {Good + Other.left(1), Other.mid(1)}, {Good, ""},
            Other.mid(1), 1);
        row("two frames in one piece", {Good + Other, ""}, {Good, Other}, {}, 0);
        row("wrong checksum before a frame", {Bad + Good, ""}, {"", Good}, {}, Bad.size());
        row("wrong checksum and one byte", {Bad + "a"}, {""}, {}, Bad.size() + 1);
        const QByteArray least = FrameOf(Hex("11"));
        row("11 of 12 bytes", {least.left(11), least.right(1)}, {"", least}, {}, 0);
        row("cut preamble", {Junk + Good.left(2), Good.mid(2)}, {"", Good}, {}, junk);
        const QByteArray hollow = FrameOf({});
        row("no payload", {hollow, Good, ""}, {"", hollow, Good}, {}, 0);
        const QByteArray longest = FrameOf(QByteArray(244, '\x01'));
        row("longest", {longest.chopped(1), longest.right(1)}, {"", longest}, {}, 0);
        const QByteArray tooLong = FrameOf(QByteArray(245, '\x01')) + Good;
        row("too long blocks the buffer", {tooLong, ""}, {"", ""}, tooLong, 0);
    }
    void Buffer() {
        QFETCH(QByteArrayList, chunks);
        QFETCH(QByteArrayList, packets);
        cInBuffer buffer;
        for (qsizetype i = 0; i < chunks.size(); ++i) {
            buffer.Append(chunks[i]);
            QByteArray packet = "old";
            bool received = false;
            buffer.GetPacket(packet, received);
            QCOMPARE(packet, packets[i]);
            QCOMPARE(received, !packets[i].isEmpty());
        }
        QTEST(buffer.Buffer(), "left");
        QCOMPARE(buffer.Count(), std::max<qsizetype>(0, buffer.Buffer().size() - 1));
        QTEST(qsizetype{buffer.Lost()}, "lost");
        buffer.Clear();
        QVERIFY(buffer.Buffer().isEmpty() && buffer.Lost() == 0);
    }

    void FullBuffer() {
        cInBuffer buffer;
        buffer.Append(QByteArray(40'000, 'a'));
        buffer.Append(QByteArray(961, 'b'));
        QCOMPARE(buffer.Count(), 40'960);
        buffer.Append({});
        QCOMPARE(buffer.Count(), 40'960);
        buffer.Append("c");
        QCOMPARE(buffer.Buffer(), "c");
        QCOMPARE(buffer.Lost(), 40'961);
    }

    void Decoding_data() {
        const TestTable<QByteArrayList, QString> row("records", "touches");
        row("empty", {}, "");
        row("marker and touch", {"0F0100AA", "3412002A"}, "001234 2.1.2000 15:42");
        row("marker alone", {"0F0100AA"}, "");
        row("two bytes of date code", {"000102AA", "C2401A00"}, "1A40C2 28.5.2001 0:00");
        row("hour 30", {"1E0100AA", "01000001"}, "000001 2.1.2000 23:01");
        row("hour 23 and 24", {"170000AA", "01000000", "180000AA", "01000000"},
            "000001 1.1.2000 23:00,000001 1.1.2000 23:00");
        row("minutes 59, 60 and FF", {"010000AA", "0100003B", "0100003C", "010000FF"},
            "000001 1.1.2000 1:59,000001 1.1.2000 1:59,000001 1.1.2000 1:59");
        row("minute AA is a marker", {"010000AA", "020500AA", "01000001"}, "000001 6.1.2000 2:01");
        row("marker of zeros", {"000000AA", "01000001"}, "000001 1.1.2000 0:01");
        row("button 000000", {"0F0100AA", "0000002A"}, "000000 2.1.2000 15:42");
        row("before any marker", {"01000007"}, "000001 30.12.1899 0:07");
        row("end mark", {"0F0100AA", "01000001", "00000000", "02000002"}, "000001 2.1.2000 15:01");
        row("end mark first", {"00000000", "01000001"}, "");
    }
    void Decoding() {
        QFETCH(QByteArrayList, records);
        for (QByteArray& record : records)
            record = QByteArray::fromHex(record);
        QTEST(Text(Decode(ImageFrames(0, records, 1))), "touches");
    }

    void AcrossFrames() {
        QByteArrayList ended = SomeRecords(100);
        ended[20] = Hex("00000000");
        QCOMPARE(static_cast<int>(Decode(ImageFrames(100, ended, 2)).size()), 19);
        // A frame holds as many records as its length allows.
        QCOMPARE(Text(Decode({FrameOf(Hex("F3010000000000060001020300040506"))})),
                 "030201 30.12.1899 0:00");
        QVERIFY(Decode({FrameOf(Hex("F3")), FrameOf(Hex("F3"))}).empty());
    }

    void LookUp() {
        for (const char* row : {"3, '7E0009', 'No description'", "1, '7E0001', 'Defined twice'"})
            gConn->Execute(QStringLiteral("INSERT INTO tblButtons (lParentID, tButtonCode, "
                                          "tButtonName) VALUES (%1)")
                               .arg(row));
        ButtonDirectory directory;
        for (int again = 0; again < 2; ++again) {
            const cRawButton& plain = directory.LookUpButtonData("7E0009");
            QCOMPARE(plain.Name + plain.Description + plain.GroupName, "No descriptionIncidents");
            for (const char* code : {"7E0001", "1a40c2"}) { // defined twice; another case
                const cRawButton& unknown = directory.LookUpButtonData(QString::fromLatin1(code));
                QCOMPARE(unknown.Name + unknown.GroupName, "Unknown");
                QCOMPARE(unknown.ButtonCode, code);
                QCOMPARE(unknown.EventType, 0);
            }
        }
    }
};

QTEST_GUILESS_MAIN(WireTest)
#include "WireTest.moc"
