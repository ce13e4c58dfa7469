// Drives the built docksim over its pseudo-terminal as a station would, with frames put together
// apart from docksim's own code.

#include "LinkTestTools.h"

#include <csignal>
#include <poll.h>
#include <termios.h>

namespace {

const QByteArray Detect = Hex("FFFFFF5503010351000111") + Hex("6A");
const QByteArray Detected = Hex("FFFFFF5503010351000180") + Hex("D9");
const QByteArray Read = FrameOf(Hex("728888000000")), Erase = FrameOf(Hex("728888FF"));
const QByteArray Erased = FrameOf(Hex("F300"));
const QByteArray Clock = FrameOf(Hex("128888173B227A")); // 2024-03-01 23:59
const QByteArray ClockSet = FrameOf(Hex("9300"));
const QByteArray NoReader = FrameOf(Hex("F3").leftJustified(9, '\xFF'));
const QByteArray Reader = "reader 33442211\n";

/// The stream of that reader when it holds the records.
QByteArray Stream(const QByteArrayList& records, int frames, int count) {
    return ImageFrames(count, records, frames, Hex("11223344")).join();
}

QByteArrayList Records(int count) {
    QByteArrayList records;
    for (int i = 0; i < count; ++i)
        records += QByteArray(1, static_cast<char>(i % 10)) + Hex("223344");
    return records;
}

QByteArray RecordLines(int count) {
    QByteArray lines;
    for (int i = 0; i < count; ++i)
        lines += "record 0" + QByteArray::number(i % 10) + " 22 33 44\n";
    return lines;
}

/// A dock and the station's end of its line.
struct Line : Dock {
    explicit Line(const QByteArray& scenario)
        : Dock(Reader + scenario),
          fd(open(Device().toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
        termios settings{};
        tcgetattr(fd, &settings);
        cfmakeraw(&settings);
        tcsetattr(fd, TCSANOW, &settings);
    }
    ~Line() { close(fd); }

    void Send(const QByteArray& bytes) const {
        if (write(fd, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size())
            throw std::runtime_error("the line is full");
    }
    /// As many bytes as are wanted, and what may come too many within 60 ms.
    QByteArray Receive(qsizetype wanted) const {
        QByteArray all;
        for (;;) {
            pollfd ready = {fd, POLLIN, 0};
            char some[4096];
            ssize_t length = 0;
            if (poll(&ready, 1, all.size() < wanted ? 5000 : 60) > 0)
                length = read(fd, some, sizeof some);
            if (length <= 0) // the time is over or the device is gone
                return all;
            all.append(some, length);
        }
    }
    QByteArray Ask(const QByteArray& command, qsizetype wanted) const {
        Send(command);
        return Receive(wanted);
    }

    int fd;
};

} // namespace

class DocksimTest : public QObject {
    Q_OBJECT

private slots:
    void Commands() {
        Line line("");
        const auto answers = [&](const QByteArray& sent, const QByteArray& wanted = {}) {
            QCOMPARE(line.Ask(sent, wanted.size()).toHex(), wanted.toHex());
        };
        answers(Detect, Detected);
        answers(Hex("0D0AFF") + Detect, Detected);
        answers(Clock, ClockSet);
        answers(FrameOf(Hex("1388880B")), FrameOf(Hex("8000")));
        answers(FrameOf(Hex("13888701"))); // a wrong PC code
        answers(Detect.chopped(1) + '\x6B');
        answers(Hex("FFFFFF550103035100") + Hex("01116A"));               // a wrong header
        answers(Hex("FFFFFF55030103510007") + '\x12' + Detect, Detected); // inside a bad frame
        const QJsonObject state = line.State();
        QCOMPARE(state["clock"].toString(), "2024-03-01T23:59");
        QVERIFY(state["options"] == 11 && state["reads"] == 0);

        // A frame may come in pieces, but not with half a second between them.
        for (const int pause : {100, 700}) {
            line.Send(Detect.left(9));
            QTest::qSleep(pause);
            answers(Detect.mid(9), pause == 100 ? Detected : QByteArray());
        }
    }

    void Memory_data() {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QByteArray>("stream");
        const auto row = [](const char* name, const QByteArray& lines,
                            const QByteArrayList& records, int frames, int count) {
            QTest::newRow(name) << lines << Stream(records, frames, count);
        };
        row("touch", "touch 2000-01-02 15:42 001234", {Hex("0F0100AA"), Hex("3412002A")}, 1, 2);
        // One marker for the touches of an hour, a new one for the next hour or day.
        row("markers",
            "touch abcdef 2024-03-01 08:00\ntouch 2024-03-01 08:59 000001\n"
            "touch 2024-03-01 09:00 000001\ntouch 2024-03-02 09:00 000001",
            {Hex("087A22AA"), Hex("EFCDAB00"), Hex("0100003B"), Hex("097A22AA"), Hex("01000000"),
             Hex("097B22AA"), Hex("01000000")},
            1, 7);
        row("empty", "", {}, 1, 0);
        for (const auto& [count, frames] :
             {std::pair(58, 1), std::pair(59, 2), std::pair(119, 3), std::pair(65535, 1093)})
            row(qPrintable(QString::number(count)), RecordLines(count), Records(count), frames,
                count);
        row("invalid", RecordLines(3) + "count -1", Records(3), 1, -1);
        row("frames", RecordLines(119) + "count 58\nframes 3", Records(119), 3, 58);
    }
    void Memory() {
        QFETCH(QByteArray, lines);
        QFETCH(QByteArray, stream);
        QCOMPARE(Line(lines).Ask(Read, stream.size()).toHex(), stream.toHex());
    }

    void Faults_data() {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("wanted");
        const QByteArray good = Stream(Records(119), 3, 119);
        QByteArray flipped = good;
        flipped[503] = static_cast<char>(~good[503]);
        const auto refused = [](const char* payload) { return FrameOf(Hex(payload)); };
        QTest::newRow("silent read") << Read + Detect << Detected;
        QTest::newRow("refuse erase 2")
            << Erase + Erase + Erase << refused("F301") + refused("F301") + Erased;
        QTest::newRow("refuse clock 1 7F") << Clock + Clock << refused("937F") + ClockSet;
        QTest::newRow("no-reader 2") << Read << good.left(504) + NoReader;
        QTest::newRow("no-reader 3") << Read << good + NoReader;
        QTest::newRow("drop-bytes 250 4") << Read << good.left(250) + good.mid(254);
        QTest::newRow("damage-byte 503") << Read << flipped;
        QTest::newRow("single-byte") << Read << good;
        QTest::newRow("pace 115200") << Read << good;
    }
    void Faults() {
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, wanted);
        const QByteArray fault = QTest::currentDataTag(), good = Stream(Records(119), 3, 119);
        Line line(RecordLines(119) + fault); // without the word "fault" ...
        QCOMPARE(line.Ask(command, wanted.size()).toHex(), wanted.toHex());
        line.Load(Reader + RecordLines(119) + fault);
        line.Say("fault none");
        line.State();
        QCOMPARE(line.Ask(Read, good.size()).toHex(), good.toHex());
        line.Say("fault " + fault); // ... and with it
        line.State();
        QCOMPARE(line.Ask(command, wanted.size()).toHex(), wanted.toHex());
    }

    void InAndOut() {
        Line line("touch 2024-03-01 08:00 000001\ncount 59");
        QCOMPARE(line.Ask(Erase, 13), Erased); // and with it the count
        QCOMPARE(line.Ask(Read, 252), Stream({}, 1, 0));
        QCOMPARE(QJsonDocument(line.State()).toJson(QJsonDocument::Compact),
                 R"({"clock":null,"erased":1,"frames_sent":2,"inserted":true,"options":null,)"
                 R"("reader":"33442211","reads":1,"records":0,"touches":0})");
        line.Say("touch 0A0B0C\nbutton 0a0b0c");
        QVERIFY(line.State()["records"] == 2);
        QCOMPARE(line.Receive(16), FrameOf(Hex("24000C0B0A")));
        line.Say("remove");
        QVERIFY(line.State()["inserted"] == false);
        QCOMPARE(line.Ask(Read, NoReader.size()), NoReader);
        QCOMPARE(line.Ask(Erase, 13), FrameOf(Hex("F3FF")));
        QCOMPARE(line.Ask(Detect, 12), Detected);
        line.Say("insert");
        const QJsonObject state = line.State();
        QVERIFY(state["inserted"] == true && state["touches"] == 1 && state["erased"] == 1);
    }

    void Mistakes_data() {
        QTest::addColumn<QString>("said");
        const auto row = [](const char* scenario, const char* said) {
            QTest::newRow(scenario) << QString::fromLatin1(said);
        };
        row("reader 33442211\n\nfrob", "scenario:3: unknown directive 'frob'");
        row("touch 2023-02-29 08:00 000001", "scenario:1: '2023-02-29'");
        row("touch 2024-03-01 08:00 000000", "end mark");
        row("# remark\nrecord 1 2 3", "scenario:2: ");
        row("count 65536", "65536");
        row("fault refuse read 1", "refused");
        row("--frob", "--frob");
        row("--log /nowhere/log", "/nowhere/log");
        row("--link scenario", "scenario"); // a file, not an old link
        // Typed to a dock without a reader.
        for (const auto& [typed, part] :
             {std::pair("button 0A0B0C", "no reader"), std::pair("frobnicate", "'frobnicate'"),
              std::pair("touch 1", "'1'"), std::pair("fault", "missing"),
              std::pair("load /nowhere", "/nowhere"), std::pair("noise 0", "'0'")})
            row(qPrintable(QStringLiteral("> %1").arg(QLatin1String(typed))), part);
    }
    void Mistakes() {
        const QString given = QString::fromLatin1(QTest::currentDataTag());
        const bool typed = given.startsWith('>'), option = given.startsWith("--");
        QTemporaryDir folder;
        QFile file(folder.filePath("scenario"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(typed || option ? "remove" : given.toLatin1());
        file.close();
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(DOCKSIM, QStringList{"--scenario", "scenario"} +
                                   (option ? given.split(' ') : QStringList()));
        process.write(typed ? given.mid(2).toLatin1() + "\nquit\n" : "");
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), typed ? 0 : 2);
        QFETCH(QString, said);
        const QString error = QString::fromUtf8(process.readAllStandardError());
        QVERIFY2(error.contains(said), qPrintable(error));
    }
};

QTEST_GUILESS_MAIN(DocksimTest)
#include "DocksimTest.moc"
