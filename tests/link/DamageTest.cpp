// A memory stream that does not arrive as it was sent. Frames have no number. Whatever happens to
// the bytes, a download must either store exactly what the reader holds, or store nothing, erase
// nothing, say "Download Error" and end without help.

#include "LinkTestTools.h"
#include "MemoryImage.h"
#include "mWardlock.h"

namespace {

/// At the first speed a run takes about 10 ms. At the second, the watchdog does not fire even on a
/// machine under load.
constexpr double Fastest = 800, Steady = 40;

const QByteArray Taught = Hex("A7314B58");
const QByteArray Untaught = Hex("11223344");

/// A memory in which every further frame could be taken for a first one: its first record reads as
/// the exact count of the rest and, unless `plain`, its third record is a marker, as at the
/// beginning of a memory.
QByteArrayList TreacherousRecords(int count, bool plain) {
    QByteArrayList records = SomeRecords(count);
    for (int i = 58; i + 2 < count; i += 60) {
        const int left = count - i - 2;
        records[i] =
            QByteArray(1, static_cast<char>(left)) + static_cast<char>(left >> 8) + '\0' + '\1';
        if (!plain)
            records[i + 2] = records[0];
    }
    return records;
}

} // namespace

class DamageTest : public QObject {
    Q_OBJECT

    struct Reader {
        QByteArrayList frames;
        QStringList touches;

        Reader(int count, const QByteArray& identifier, bool plain = false) {
            const QByteArrayList records = TreacherousRecords(count, plain);
            frames = ImageFrames(count, records, FramesFor(count), identifier);
            for (const QByteArray& record : records) {
                if (record == records[0])
                    continue;
                const char code[] = {record[2], record[1], record[0]};
                touches += QStringLiteral("%1 2.1.2000 15:%2")
                               .arg(QString::fromLatin1(QByteArray(code, 3).toHex().toUpper()))
                               .arg(int{record[3]}, 2, 10, QLatin1Char('0'));
            }
        }
    };

    TestHome m_home{TestHome::DemoSite};
    ScriptedBoxes m_boxes;
    LineEnd m_line;
    DockingLink m_link;

    /// The result of a download of this stream: "stored", "Download Error" or another message of
    /// the transfer, "waits" (for Cancel), or what went wrong.
    QString Verdict(const QByteArray& stream, const Reader& reader, double speed) {
        const TestClock clock(DateTime::FromQt(QDate(2026, 3, 1)), speed);
        m_line.Commands.clear();
        m_line.Answers[CmdReadMemory()] = stream;
        RecordingView view(m_link);
        view.Patience = 600'000;
        MemoryDownload download(m_link, view);
        download.Run();
        const QString verdict = Judge(reader, view, download.LastOutcome().readerId);
        if (!StoredTouches().isEmpty())
            ForgetTouches();
        return verdict;
    }

    QString Judge(const Reader& reader, const RecordingView& view, const QString& readerId) {
        const QStringList rows = StoredTouches();
        const QString messages = m_boxes.TakeTexts().join(u'|');
        const int erasures = m_line.Commands.value(CmdEraseMemory());
        if (!view.ProgressInRange)
            return QStringLiteral("the progress left its range");
        if (gCommActive || m_line.Commands.value(CmdReadMemory()) != 1)
            return QStringLiteral("the conversation did not end");
        if (rows == reader.touches && erasures == 1 && messages.isEmpty() &&
            readerId == ReaderIdOf(reader.frames.first()))
            return QStringLiteral("stored");
        if (!rows.isEmpty() || erasures != 0 || view.MessageText != u"Download Failed")
            return QStringLiteral("%1 rows of reader %2, %3 erasures, %4")
                .arg(rows.size())
                .arg(readerId)
                .arg(erasures)
                .arg(view.MessageText);
        if (view.WasCancelled && messages.isEmpty())
            return QStringLiteral("waits");
        return messages;
    }

    /// One run of the proof. Gives an empty text if it succeeds.
    QString Fault(const QByteArray& stream, const Reader& reader, const QString& what) {
        QString verdict = Verdict(stream, reader, Fastest);
        if (verdict == u"waits") // perhaps because the machine was slow
            verdict = Verdict(stream, reader, Steady);
        return verdict == u"stored" || verdict == u"Download Error"
                   ? QString()
                   : what + QStringLiteral(": ") + verdict;
    }

private slots:
    void initTestCase() {
        m_line.Answers[CmdEraseMemory()] = FrameOf(Hex("F300"));
        gAutoSetTime = false;
        QVERIFY(m_link.OpenPort(1));
    }

    // Streams that are good although bytes were added, and some that are not.
    void Streams_data() {
        // `before` is sent before the frame with this number.
        const TestTable<int, QByteArray, int, QByteArray, QString> row(
            "count", "identifier", "frame", "before", "verdict");
        const QString stored = QStringLiteral("stored"), error = QStringLiteral("Download Error");
        row("1 frame, untaught", 58, Untaught, 1, {}, stored);
        row("2 frames, untaught", 118, Untaught, 1, {}, stored);
        row("5 frames", 270, Taught, 1, {}, stored);
        const QByteArray button = FrameOf(Hex("2400C2401A"));
        for (const QByteArray& identifier : {Taught, Untaught}) {
            const QString reader = identifier == Taught ? "taught" : "untaught";
            const auto rows = [&](const QString& name, const QByteArray& bytes) {
                for (int place = 1; place <= 3; ++place)
                    row(QStringLiteral("%1 at frame %2, %3").arg(name).arg(place).arg(reader), 100,
                        identifier, place, bytes, stored);
            };
            rows("noise", Hex("FF00FFFF1755FFFFFF0055AA"));
            rows("CR LF", "\r\n");
            rows("a button frame", button);
            for (const int part : {4, 5, 9, 15})
                rows(QStringLiteral("%1 bytes of a button frame").arg(part), button.left(part));
            rows("most noise", QByteArray(125, 'x'));
        }
        row("too much noise, untaught", 100, Untaught, 1, QByteArray(126, 'x'), error);
        row("too much noise later, untaught", 100, Untaught, 2, QByteArray(5000, 'x'), stored);
        const QByteArray further = ImageFrames(5, {}, 1).first();
        row("a frame begun behind", 100, Taught, 3, further.left(60), error);
        row("a frame damaged behind", 100, Taught, 3, further.chopped(1) + 'x', error);
        row("a frame too many", 100, Taught, 3, further, error);
        row("long frame of another code", 100, Untaught, 1,
            FrameOf(Hex("F4").leftJustified(241, '\x05')), stored);
        row("status too short for its bytes", 100, Untaught, 1,
            FrameOf(Hex("F3").leftJustified(8, '\xFF')), stored);
        const QByteArray fault = FrameOf(Hex("F3").leftJustified(9, '\x01'));
        row("transfer fault", 100, Taught, 1, fault, error + QStringLiteral(" (002)"));
        row("transfer fault between", 100, Taught, 2, fault, error + QStringLiteral(" (002)"));
        const QString noReader = QStringLiteral("Reader not detected. Check reader and try again.");
        row("no reader", 100, Taught, 1, FrameOf(Hex("2A").leftJustified(9, '\xFF')), noReader);
        row("no reader, longest status", 100, Taught, 2,
            FrameOf(Hex("F3").leftJustified(240, '\xFF')), noReader);
        row("status of unequal bytes", 100, Taught, 2,
            FrameOf(Hex("F3").leftJustified(8, '\xFF') + Hex("01")), stored);
        row("invalid memory", 100, Taught, 1, ImageFrames(-1, {}, 1).first(), error);
        row("negative count", 100, Taught, 1, ImageFrames(0x8000, {}, 1).first(), error);
    }
    void Streams() {
        QFETCH(int, count);
        QFETCH(QByteArray, identifier);
        QFETCH(QByteArray, before);
        QFETCH(int, frame);
        const Reader reader(count, identifier);
        QByteArrayList frames = reader.frames;
        frames.insert(frame - 1, before);
        QTEST(Verdict(frames.join(), reader, Steady), "verdict");
    }

    // Only if nothing at all arrives does the download wait for the operator.
    void Silence() {
        const Reader reader(40, Taught);
        QCOMPARE(Verdict({}, reader, Fastest), "waits");
        QCOMPARE(Verdict(Hex("00"), reader, Fastest), "Download Error");
    }

    // The first frame is lost and the second is the empty end of the image. It reads as an empty
    // image without a fault.
    void EmptyEndAlone() {
        QCOMPARE(Verdict(FrameOf(Hex("F3").leftJustified(241, '\0')), Reader(58, Untaught), Steady),
                 "Download Error");
    }

    void EverySingleByte_data() {
        const TestTable<int, QByteArray> row("count", "identifier");
        row("1 frame", 40, Taught);
        row("2 frames", 100, Untaught);
        row("5 frames", 260, Taught);
    }
    void EverySingleByte() {
        QFETCH(int, count);
        QFETCH(QByteArray, identifier);
        const Reader reader(count, identifier);
        const QByteArray stream = reader.frames.join();
        for (qsizetype at = 0; at < stream.size(); ++at) {
            const qsizetype frame = at / 252;
            if ((frame == 2 || frame == 3) && at % 3 != 0)
                continue;
            QByteArray dropped = stream, inverted = stream, nudged = stream;
            dropped.remove(at, 1);
            inverted[at] = static_cast<char>(~stream[at]);
            nudged[at] = static_cast<char>(stream[at] ^ 1);
            const QString where = QStringLiteral(" byte %1").arg(at);
            QCOMPARE(Fault(dropped, reader, "dropped" + where), "");
            QCOMPARE(Fault(inverted, reader, "inverted" + where), "");
            QCOMPARE(Fault(nudged, reader, "nudged" + where), "");
        }
    }

    void EveryRun_data() { EverySingleByte_data(); }
    void EveryRun() {
        QFETCH(int, count);
        QFETCH(QByteArray, identifier);
        const Reader treacherous(count, identifier), plain(count, identifier, true);
        for (qsizetype start = 0; start < treacherous.frames.size() * 252; start += 21)
            for (const qsizetype length : {2, 4, 9, 21, 100, 231, 241, 252, 253, 400, 504, 1008}) {
                // If whole frames are lost from the front, except for what could be noise, the rest
                // is a sound stream. Only its content could give it away, so it must be plain.
                const qsizetype left = 251 - (start + length - 1) % 252 + start;
                const Reader& reader = start < 252 && left < 126 ? plain : treacherous;
                QByteArray rest = reader.frames.join();
                rest.remove(start, length);
                if (!rest.isEmpty())
                    QCOMPARE(Fault(rest, reader,
                                   QStringLiteral("%1 bytes lost from %2").arg(length).arg(start)),
                             "");
            }
    }
};

QTEST_GUILESS_MAIN(DamageTest)
#include "DamageTest.moc"
