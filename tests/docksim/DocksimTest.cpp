// Talks to the built docksim over its pseudo-terminal, as a station would. The frames are not made
// by docksim's own code.

#include "LinkTestTools.h"

#include <poll.h>

namespace {

const QByteArray Detect = Hex("FFFFFF55030103510001116A");
const QByteArray Detected = Hex("FFFFFF5503010351000180D9");
const QByteArray Read = FrameOf(Hex("728888000000")), Erase = FrameOf(Hex("728888FF"));
const QByteArray Erased = FrameOf(Hex("F300"));
const QByteArray Clock = FrameOf(Hex("128888173B227A")); // 2024-03-01 23:59
const QByteArray ClockSet = FrameOf(Hex("9300"));
const QByteArray NoReader = FrameOf(Hex("F3").leftJustified(9, '\xFF'));
const QByteArray Reader = "reader 33442211\n";

/// The memory stream of that reader with these records.
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
    for (const QByteArray& record : Records(count))
        lines += "record " + record.toHex(' ') + '\n';
    return lines;
}

/// A dock and the station's end of its line.
struct Line : Dock {
    explicit Line(const QByteArray& scenario)
        : Dock(Reader + scenario),
          fd(open(Device().toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
    }
    ~Line() { close(fd); }

    /// This many bytes, and any that come within 60 ms after them.
    QByteArray Receive(qsizetype wanted) const {
        QByteArray all;
        for (pollfd ready = {fd, POLLIN, 0};
             poll(&ready, 1, all.size() < wanted ? 5000 : 60) > 0;) {
            char some[4096];
            const ssize_t length = read(fd, some, sizeof some);
            if (length <= 0) // the device is gone
                break;
            all.append(some, length);
        }
        return all;
    }
    QByteArray Ask(const QByteArray& command, qsizetype wanted) const {
        if (write(fd, command.constData(), static_cast<size_t>(command.size())) != command.size())
            throw std::runtime_error("the line is full");
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
        answers(FrameOf(Hex("13888701")));                         // a wrong PC code
        answers(Detect.chopped(1) + '\x6B');                       // a wrong checksum
        answers(Hex("FFFFFF55010303510001116A"));                  // a wrong header
        answers(Hex("FFFFFF5503010351000712") + Detect, Detected); // inside a bad frame
        // A frame may come in pieces, but not with half a second between them.
        answers(Detect.left(9));
        answers(Detect.mid(9), Detected);
        answers(Detect.left(9));
        QTest::qSleep(600);
        answers(Detect.mid(9));
    }

    void Answers_data() {
        const TestTable<QByteArray, QByteArray, QByteArray> row("scenario", "command", "wanted");
        const auto memory = [&](const QString& name, const QByteArray& lines,
                                const QByteArrayList& records, int frames, int count) {
            row(name, lines, Read, Stream(records, frames, count));
        };
        // One marker for the touches of an hour, a new one for the next hour or day.
        memory("markers",
               "touch abcdef 2000-01-02 08:00\ntouch 2000-01-02 08:59 001234\n"
               "touch 2000-01-02 09:00 000001\ntouch 2024-03-01 09:00 000001",
               {Hex("080100AA"), Hex("EFCDAB00"), Hex("3412003B"), Hex("090100AA"), Hex("01000000"),
                Hex("097A22AA"), Hex("01000000")},
               1, 7);
        for (const auto& [count, frames] : {std::pair(0, 1), std::pair(58, 1), std::pair(59, 2),
                                            std::pair(119, 3), std::pair(65535, 1093)})
            memory(QString::number(count), RecordLines(count), Records(count), frames, count);
        memory("negative", RecordLines(3) + "count -1", Records(3), 1, -1);
        memory("frames", RecordLines(119) + "count 58\nframes 3", Records(119), 3, 58);

        const auto fault = [&](const char* line, const QByteArray& command,
                               const QByteArray& wanted) {
            row(line, RecordLines(119) + line, command, wanted);
        };
        const QByteArray good = Stream(Records(119), 3, 119);
        fault("fault refuse clock 1 7F", Clock + Clock, FrameOf(Hex("937F")) + ClockSet);
        fault("no-reader 2", Read, good.left(504) + NoReader);
        fault("damage-byte 503 2A", Read,
              good.left(503) + static_cast<char>(good[503] ^ 0x2A) + good.mid(504));
    }
    void Answers() {
        QFETCH(QByteArray, scenario);
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, wanted);
        QCOMPARE(Line(scenario).Ask(command, wanted.size()).toHex(), wanted.toHex());
    }

    void InAndOut() {
        Line line("touch 2024-03-01 08:00 000001\ncount 59\nsilent erase");
        line.Say("fault none");
        line.State();
        QCOMPARE(line.Ask(Erase, 13), Erased); // this clears the count too
        QCOMPARE(line.Ask(Read, 252), Stream({}, 1, 0));
        QVERIFY(line.State()["clock"].isNull());
        QCOMPARE(line.Ask(Clock + FrameOf(Hex("1388880B")), 26), ClockSet + FrameOf(Hex("8000")));
        QCOMPARE(QJsonDocument(line.State()).toJson(QJsonDocument::Compact),
                 R"({"clock":"2024-03-01T23:59","erased":1,"frames_sent":4,"inserted":true,)"
                 R"("options":11,"reader":"33442211","reads":1,"records":0,"touches":0})");
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
        const TestTable<QString> row("said");
        row("reader 33442211\n\nfrob", "scenario:3: unknown directive 'frob'");
        row("touch 2023-02-29 08:00 000001", "scenario:1: '2023-02-29'");
        row("touch 2024-03-01 08:00 000000", "end mark");
        row("# remark\nrecord 1 2 3", "scenario:2: ");
        row("fault refuse read 1", "refused");
        row("--frob", "--frob");
        row("--log /nowhere/log", "/nowhere/log");
        row("--link scenario", "scenario"); // a file, not an old link
        // Typed while there is no reader.
        row("> button 0A0B0C", "no reader");
        row("> frobnicate", "'frobnicate'");
        row("> touch 1", "'1'");
        row("> fault", "missing");
        row("> load /nowhere", "/nowhere");
        row("> noise 0", "'0'");
        row("> log up", "'up'");
    }
    void Mistakes() {
        const QString given = QString::fromLatin1(QTest::currentDataTag());
        const bool typed = given.startsWith('>'), option = given.startsWith("--");
        QTemporaryDir folder;
        WriteBytes(folder.filePath("scenario"), typed || option ? "remove" : given.toLatin1());
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
