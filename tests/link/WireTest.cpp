// The wire format, the receive buffer and the decoding of memory images.

#include "LinkTestTools.h"
#include "MemoryImage.h"
#include "RunTimeError.h"
#include "cInBuffer.h"
#include "mWardlock.h"

#include <random>

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
    void Commands() {
        const auto frame = [](const QByteArray& payload) {
            return QString::fromLatin1(
                BuildPacket(0x03, 0x01, 0x03, 0x51, 0x00, payload).toHex(' ').toUpper());
        };
        QCOMPARE(frame(CmdDetect()), "FF FF FF 55 03 01 03 51 00 01 11 6A");
        QCOMPARE(frame(CmdSetClock(0, 0, 0, 0)),
                 "FF FF FF 55 03 01 03 51 00 07 12 88 88 00 00 00 00 81");
        QCOMPARE(frame(CmdSetClock(23, 59, 0x01, 0x02)),
                 "FF FF FF 55 03 01 03 51 00 07 12 88 88 17 3B 01 02 D6");
        QCOMPARE(frame(CmdEraseMemory()), "FF FF FF 55 03 01 03 51 00 04 72 88 88 FF DD");
        QCOMPARE(frame(CmdReadMemory()), "FF FF FF 55 03 01 03 51 00 06 72 88 88 00 00 00 E0");
    }

    // The first part of the sum, header and length, must fit one byte.
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

    void Texts() {
        QCOMPARE(Hex00(0), "00");
        QCOMPARE(Hex00(10), "0A");
        QCOMPARE(Hex00(255), "FF");
        QCOMPARE(BytesToHex({}), QString());
        QCOMPARE(BytesToHex(Hex("01AB")), "01 AB ");
        const QByteArray first = ImageFrames(-1, {}, 1, Hex("11223344")).first();
        QCOMPARE(ReaderIdOf(first), "33442211");
        QCOMPARE(FirmwareTextOf(first), "V06");
    }

    void DateCodes() {
        QCOMPARE(DateCodeOf(DateTime::FromQt(QDate(2000, 1, 1))), 0);
        QCOMPARE(DateCodeOf(DateTime::FromQt(QDate(2000, 1, 2)) + DateTime::FromTime(23, 59, 59)),
                 1);
        QCOMPARE(DateTime::FromDays(DecodeDateCode(0xFF, 0xFF)).ToQDate(), QDate(2179, 6, 6));
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

    // After each chunk one packet is asked for; "" asks without new bytes.
    void Buffer_data() {
        QTest::addColumn<QByteArrayList>("chunks");
        QTest::addColumn<QByteArrayList>("packets"); // empty where there is none
        QTest::addColumn<QByteArray>("left");
        QTest::addColumn<int>("lost");
        const auto row = [](const char* name, const QByteArrayList& chunks,
                            const QByteArrayList& packets, const QByteArray& left = {},
                            qsizetype lost = 0) {
            QTest::newRow(name) << chunks << packets << left << static_cast<int>(lost);
        };
        const qsizetype junk = Junk.size();
        row("empty", {""}, {""});
        row("junk stays", {Junk}, {""}, Junk);
        row("a frame", {Good}, {Good});
        row("four preamble bytes", {'\xFF' + Good, ""}, {"", Good}, {}, 1);
        row("preamble without sync", {Hex("FFFFFF00") + Good, ""}, {"", Good}, {}, 4);
        row("junk, frame, two bytes", {Junk + Good + "ab"}, {Good}, "ab", junk);
        row("junk, frame, one byte", {Junk + Good + "a"}, {Good}, {}, junk + 1);
        row("that byte begins a frame", {Good + Other.left(1), Other.mid(1)}, {Good, ""},
            Other.mid(1), 1);
        row("two frames in one piece", {Good + Other, ""}, {Good, Other});
        row("wrong checksum before a frame", {Bad + Good, ""}, {"", Good}, {}, Bad.size());
        row("wrong checksum and one byte", {Bad + "a"}, {""}, {}, Bad.size() + 1);
        const QByteArray least = FrameOf(Hex("11"));
        row("11 of 12 bytes", {least.left(11), least.right(1)}, {"", least});
        row("cut preamble", {Junk + Good.left(2), Good.mid(2)}, {"", Good}, {}, junk);
        const QByteArray hollow = FrameOf({});
        row("no payload", {hollow, Good, ""}, {"", hollow, Good});
        const QByteArray longest = FrameOf(QByteArray(244, '\x01'));
        row("longest", {longest.chopped(1), longest.right(1)}, {"", longest});
        const QByteArray tooLong = FrameOf(QByteArray(245, '\x01')) + Good;
        row("too long blocks the buffer", {tooLong, ""}, {"", ""}, tooLong);
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
        QTEST(static_cast<int>(buffer.Lost()), "lost");
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

    // However a stream is cut, the same frames come out of it, unless a cut leaves a single byte
    // behind a frame; and every byte is accounted for at any time.
    void AnyChunks() {
        std::mt19937 random(20260301);
        const auto below = [&](int limit) {
            return std::uniform_int_distribution(0, limit - 1)(random);
        };
        const QByteArrayList junk{"", "", Junk, Hex("FF"), Hex("FFFF"), Hex("FFFFFFFF"), Bad};
        for (int round = 0; round < 2000; ++round) {
            QByteArray stream;
            QByteArrayList frames;
            QSet<qsizetype> unsafeCuts;
            for (int i = below(8); i >= 0; --i) {
                stream += junk[below(static_cast<int>(junk.size()))];
                unsafeCuts += stream.size() + 1; // behind a bad frame
                QByteArray payload(1 + below(244), '\0');
                std::generate(payload.begin(), payload.end(),
                              [&] { return static_cast<char>(below(4) == 0 ? 255 : below(256)); });
                frames += FrameOf(payload);
                stream += frames.last();
                unsafeCuts += stream.size() + 1;
            }
            cInBuffer buffer;
            QByteArrayList taken;
            qsizetype delivered = 0;
            for (qsizetype at = 0; at < stream.size();) {
                qsizetype size = 1 + below(below(2) == 0 ? 3 : 400);
                size += unsafeCuts.contains(at + size);
                buffer.Append(stream.mid(at, size));
                at = std::min(at + size, stream.size());
                for (qsizetype before = -1; before != buffer.Buffer().size();) {
                    before = buffer.Buffer().size();
                    QByteArray packet;
                    bool received = false;
                    buffer.GetPacket(packet, received);
                    if (received)
                        taken += packet;
                    delivered += packet.size();
                    QCOMPARE(delivered + buffer.Lost() + buffer.Buffer().size(), at);
                }
            }
            QCOMPARE(taken, frames);
        }
    }

    void Decoding_data() {
        QTest::addColumn<QByteArrayList>("records");
        QTest::addColumn<QString>("touches");
        const auto row = [](const char* name, std::initializer_list<const char*> records,
                            const char* touches) {
            QByteArrayList bytes;
            for (const char* record : records)
                bytes += Hex(record);
            QTest::newRow(name) << bytes << QString::fromLatin1(touches);
        };
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
        QTEST(Text(Decode(ImageFrames(0, records, 1))), "touches");
    }

    // 58 records, then 60: nothing is lost or invented where the frames meet, and what a marker
    // said holds across them.
    void AcrossFrames() {
        for (const int count : {1, 57, 58, 59, 60, 117, 118, 119, 178, 179, 300}) {
            const QByteArrayList records = SomeRecords(count);
            QStringList touches;
            for (int i = 1; i < count; ++i)
                touches += QStringLiteral("1A%1 2.1.2000 15:%2")
                               .arg(0x4000 + i, 4, 16)
                               .arg(i % 60, 2, 10, QLatin1Char('0'))
                               .toUpper();
            QCOMPARE(Text(Decode(ImageFrames(count, records, FramesFor(count)))),
                     touches.join(u','));
        }
        QByteArrayList ended = SomeRecords(100);
        ended[20] = Hex("00000000");
        QCOMPARE(static_cast<int>(Decode(ImageFrames(100, ended, 2)).size()), 19);
        // How many records a frame holds follows from its own length.
        QCOMPARE(Text(Decode({FrameOf(Hex("F3010000000000060001020300040506"))})),
                 "030201 30.12.1899 0:00");
        QVERIFY(Decode({FrameOf(Hex("F3")), FrameOf(Hex("F3"))}).empty());
    }

    void LookUp() {
        gConn->Execute(QStringLiteral("INSERT INTO tblButtons (lParentID, tButtonCode, tButtonName)"
                                      " VALUES (3, '7E0009', 'No description')"));
        gConn->Execute(QStringLiteral("INSERT INTO tblButtons (lParentID, tButtonCode, tButtonName)"
                                      " VALUES (1, '7E0001', 'Defined twice')"));
        ButtonDirectory directory;
        const auto look = [&](const char* code) {
            const cRawButton& button = directory.LookUpButtonData(QString::fromLatin1(code));
            return QStringList{button.ButtonCode,  button.Name,
                               button.Description, button.GroupName,
                               button.GroupDesc,   QString::number(button.EventType)}
                .join(u'|');
        };
        for (int again = 0; again < 2; ++again) {
            QCOMPARE(
                look("1A40C2"),
                "1A40C2|Main gate|Left post, knee height|Harbour Warehouse|Pier 4, north side|1");
            QCOMPARE(look("7E0009"), "7E0009|No description||Incidents|Carried by every guard|2");
            QCOMPARE(look("7E0001"), "7E0001|Unknown||||0"); // defined twice
            QCOMPARE(look("1a40c2"), "1a40c2|Unknown||||0");
            QCOMPARE(look("ABCDEF"), "ABCDEF|Unknown||||0");
        }
    }
};

QTEST_GUILESS_MAIN(WireTest)
#include "WireTest.moc"
