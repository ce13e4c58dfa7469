// The report engine: pages, groups, captions, texts that are too long, faulty layouts, PDF and the
// other formats.

#include "Clock.h"
#include "Files.h"
#include "Format.h"
#include "ReportExport.h"
#include "ReportPdf.h"
#include "SmallReport.h"
#include "TestHome.h"
#include "TestTable.h"
#include "darTourException.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <random>
#include <set>

namespace {

constexpr int DotsPerMillimetre = 8;
const DateTime Evening = DateTime::FromQt(QDate(2026, 11, 5)) + DateTime::FromTime(22, 7, 58);

QString PdfText(const DataReport& report) {
    QTemporaryDir folder;
    const QString path = folder.filePath("report.pdf");
    ExportPdf(report, path);
    return TextOfPdf(path);
}

QImage Painted(const DataReport& report, int page) {
    QImage image(210 * DotsPerMillimetre, 297 * DotsPerMillimetre, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(DotsPerMillimetre / 100.0, DotsPerMillimetre / 100.0);
    report.PaintPage(painter, page, Evening);
    return image;
}

/// The inked part of a horizontal strip of the paper; all in millimetres.
struct Ink {
    double left = 1000, right = 0, top = 1000, bottom = 0;
};
Ink InkWithin(const QImage& paper, int top, int height) {
    Ink ink;
    for (int y = top * DotsPerMillimetre; y < (top + height) * DotsPerMillimetre; ++y)
        for (int x = 0; x < paper.width(); ++x)
            if (qGray(paper.pixel(x, y)) < 128) {
                const double across = static_cast<double>(x) / DotsPerMillimetre;
                const double down = static_cast<double>(y) / DotsPerMillimetre;
                ink = {std::min(ink.left, across), std::max(ink.right, across),
                       std::min(ink.top, down), std::max(ink.bottom, down)};
            }
    return ink;
}

} // namespace

class ReportTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    // The same rules row by row, as plainly as they can be said.
    static std::vector<std::vector<Pagination::Band>>
    PlainPages(const std::vector<qsizetype>& groups, std::array<int, 7> heights, int body) {
        const auto height = [&](SectionKind kind) { return heights[std::size_t(kind)]; };
        std::vector<std::vector<Pagination::Band>> pages(1);
        int room = body - height(SectionKind::ReportHeader);
        const auto place = [&](SectionKind kind, qsizetype row) {
            if (height(kind) > 0)
                pages.back().push_back({kind, row});
            room -= height(kind);
        };
        const int header = height(SectionKind::GroupHeader);
        qsizetype row = 0;
        for (const qsizetype rows : groups) {
            const qsizetype first = row, last = first + rows - 1;
            for (; row <= last; ++row) {
                const int footer = row == last ? height(SectionKind::GroupFooter) : 0;
                const int need = height(SectionKind::Detail) + footer;
                const bool turn = (row == first ? header : 0) + need > room;
                if (turn) {
                    pages.emplace_back();
                    room = body;
                }
                if (turn || row == first)
                    place(SectionKind::GroupHeader, first);
                place(SectionKind::Detail, row);
                if (row == last)
                    place(SectionKind::GroupFooter, row);
            }
        }
        if (height(SectionKind::ReportFooter) > room)
            pages.emplace_back();
        return pages;
    }

    void GroupedPagesAgreeWithPlainOnes() {
        std::mt19937 random(4711);
        const auto upto = [&](int most) { return int(random() % unsigned(most + 1)); };
        for (int turn = 0; turn < 4'000; ++turn) {
            const std::array heights{upto(3), upto(2), upto(3), 1 + upto(3),
                                     upto(3), upto(2), upto(9)};
            const int body = heights[0] + heights[2] + heights[3] + heights[4] + upto(30) + 9;
            ReportLayout layout;
            layout.page = QSize(100, body + heights[1] + heights[5]);
            for (std::size_t kind = 0; kind < heights.size(); ++kind)
                layout.sections.emplace_back(QString(), SectionKind(kind), heights[kind]);
            std::vector<qsizetype> groups, names;
            for (int count = upto(12); count > 0; --count) {
                groups.push_back(1 + (upto(2) ? upto(3) : upto(90)));
                names.insert(names.end(), std::size_t(groups.back()), count);
            }
            CountedRows rows(qsizetype(names.size()));
            rows.Text = [&](qsizetype row) { return QString::number(names[std::size_t(row)]); };
            const Pagination pages(layout, rows.RowCount(), GroupStarts(rows, 0));
            const auto plain = PlainPages(groups, heights, body);
            QCOMPARE(pages.PageCount(), int(plain.size()));
            for (std::size_t page = 0; page < plain.size(); ++page)
                QVERIFY2(pages.BandsOf(int(page)) == plain[page],
                         qPrintable(QString::number(turn)));
        }
    }

    void GroupsAsTextJsonAndCsv() {
        const Touches touches;
        const auto report = SmallReport(GroupedLayout());
        report->SetDataSource(&touches);
        report->SetCaption("Loads");
        report->Control(u"lblHead").SetCaption("Head");
        report->Control(u"lblLoad").SetCaption("Load %p:", CaptionKind::Literal);
        report->Control(u"txtLoad").SetDataFormat("dd/mm HH:NN:SS");
        QCOMPARE(ReportText(*report),
                 "Loads\n=====\n\n"
                 "\nLoad %p:     29/03 12:00:00\na\nsay \"b\"\n      say \"b\"\n"
                 "\nLoad %p:     30/03 00:00:00\n\n\n\n");
        QCOMPARE(ReportJson(*report),
                 "{\"title\": \"Loads\", \"rows\": [\n"
                 "{\"dtLoad\": \"2026-03-29T12:00:00\", \"T\": [\n"
                 "{\"dtLoad\": \"2026-03-29T12:00:00\", \"tName\": \"a\"},\n"
                 "{\"dtLoad\": \"2026-03-29T12:00:00\", \"tName\": \"say \\\"b\\\"\"}\n]},\n"
                 "{\"dtLoad\": \"2026-03-30T00:00:00\", \"T\": [\n"
                 "{\"dtLoad\": \"2026-03-30T00:00:00\", \"tName\": null}\n]}\n]}\n");
        QCOMPARE(ReportCsv(*report), "\"dtLoad\",\"tName\"\r\n"
                                     "\"2026-03-29T12:00:00\",\"a\"\r\n"
                                     "\"2026-03-29T12:00:00\",\"say \"\"b\"\"\"\r\n"
                                     "\"2026-03-30T00:00:00\",\"\"\r\n");
        if (HasPdfTool())
            QCOMPARE(PdfText(*report),
                     "Head 1 / 1 Load %p: 29/03 12:00:00 a say \"b\" say \"b\" Load "
                     "%p: 30/03 00:00:00");
    }

    void FewRowsAreRead() {
        CountedRows rows(1'000'000);
        rows.Text = [](qsizetype row) { return row < 700'000 ? QString("a") : QString("b"); };
        QCOMPARE(GroupStarts(rows, 0), (std::vector<qsizetype>{0, 700'000}));
        QVERIFY2(rows.Reads < 100, qPrintable(QString::number(rows.Reads)));
        rows.Reads = 0;
        const auto report = SmallReport();
        report->SetDataSource(&rows);
        QCOMPARE(report->PageCount(), 111'112);
        QCOMPARE(rows.Reads, 0);
        Painted(*report, 5'000);
        QCOMPARE(rows.Reads, 9);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, Painted(*report, report->PageCount()));
    }

    void UnknownNamesAreRefused() {
        const auto report = SmallReport();
        QVERIFY_THROWS_EXCEPTION(RunTimeError, report->Sections(u"Nowhere"));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, report->Sections(u"Top").Controls(u"lblNone"));
        CountedRows other(1);
        other.Names = QStringList("tOther");
        QVERIFY_THROWS_EXCEPTION(RunTimeError, report->SetDataSource(&other));
        QVERIFY(!report->DataSource());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, LoadReportLayout("darNone"));
    }

    void FaultyLayoutsAreNamed() {
        const std::tuple<const char*, const char*, const char*> faults[] = {
            {"{", "[", "test.json"},
            {"\"detail\"", "\"tail\"", "Row"},
            {"\"detail\"", "\"groupHeader\"", "\"group\""}, // no column that groups
            {"\"textBox\"", "\"box\"", "txtName"},
            {"\"field\": \"tName\",", "", "txtName"},
            {"\"width\": 60", "\"width\": \"x\"", "lblHead"},
            {"\"field\"", "\"feild\"", "txtName"},
            {"\"width\": 60", "\"width\": 101", "lblHead"}, // beyond its section
            {"\"top\": 0", "\"top\": 0, \"bottom\": 0", "lblHead"},
            {"\"style\": \"name\"", "\"style\": \"none\"", "txtName"},
            {"\"font\"", "\"family\": \"none\", \"font\"", "none"},
            {"\"top\": 0", "\"top\": -1", "lblHead"},
            {"\"Top\"", "\"head\"", "head"},               // two of a name
            {"\"pageHeader\"", "\"reportHeader\"", "Top"}, // two of a kind
            {"\"label\"", "\"textBox\"", "lblHead"},       // there is no row
            {"\"width\": 100", "\"width\": 211", "page"},  // wider than the paper
            {"\"detail\", \"height\": 10", "\"detail\", \"height\": 500", "test.json"}};
        for (const auto& [from, to, named] : faults) {
            const QByteArray json = SmallLayout().replace(from, to);
            const QString text = DescriptionOf([&] { ReadReportLayout(json, "test.json"); });
            QVERIFY2(text.contains("test.json") && text.contains(QString::fromUtf8(named)),
                     qPrintable(to + (": " + text)));
        }
    }

    void TextsStayInTheirBox_data() {
        // `reaches`: at least so much of the 60 mm is inked.
        const TestTable<QString, QByteArray, double> row("text", "style", "reaches");
        const QString latin = QStringLiteral("Warehouse ").repeated(50);
        const QString hebrew =
            QString::fromUtf8("\u05de\u05d7\u05e1\u05df \u05d4\u05e0\u05de\u05dc ");
        const QByteArray left = "\"left\"";
        row("left", latin, left, 55.0);
        row("right", latin, "\"right\"", 55.0);
        row("centred", latin, "\"centre\"", 55.0);
        row("right to left", hebrew.repeated(50), left, 55.0);
        row("kerned", QString("AV").repeated(200), left, 55.0);
        row("rule", QString(255, u'_'), left, 59.8);
        row("rule of dashes", QString(255, u'-'), left, 59.8);
        row("breaks, tabs and controls",
            QString::fromUtf8("one\r\ntwo\tthree\x1b\x07\u0085\u2028\u2029 ").repeated(9), left,
            50.0);
        row("long beyond sense", QString(1'000'000, u'W'), left, 55.0);
        row("one letter, much marked",
            u'A' + QString(60, QChar(0x0301)) + QString(60, QChar(0x0323)), left, 1.0);
        row("letter higher than its line", QString(QChar(0x01fa)), "\"left\", \"size\": 12", 1.0);
        row("letters with tails, slanted", QStringLiteral("jf"), "\"left\", \"italic\": true", 1.0);
        row("letters with tails at the right", QStringLiteral("jf"), "\"right\", \"italic\": true",
            1.0);
        row("letters higher than the box", QString::fromUtf8("\u00c5g\u1eaag"),
            "\"centre\", \"size\": 30", 5.0);
    }
    void TextsStayInTheirBox() {
        QFETCH(QString, text);
        QFETCH(QByteArray, style);
        QFETCH(double, reaches);
        CountedRows source(2); // the second shows where the ink of the first must not be
        source.Text = [&](qsizetype row) { return row == 1 ? text : QString(); };
        const auto report =
            SmallReport(SmallLayout().replace("\"left\" }", QByteArray(style + " }")));
        report->SetDataSource(&source);
        const QImage paper = Painted(*report, 0);
        const Ink ink = InkWithin(paper, 119, 80);
        QVERIFY2(ink.left >= 54.9 && ink.right <= 115.1,
                 qPrintable(QStringLiteral("%1 to %2").arg(ink.left).arg(ink.right)));
        QVERIFY(ink.right - ink.left >= reaches);
        QVERIFY2(ink.top >= 128.4 && ink.bottom <= 133.6,
                 qPrintable(QStringLiteral("%1 to %2").arg(ink.top).arg(ink.bottom)));
    }

    void ControlsAreBlanks() {
        CountedRows source(1);
        const auto report = SmallReport();
        report->SetDataSource(&source);
        const auto painted = [&](const QString& controls) {
            source.Text = [=](qsizetype) { return QChar(0x05d0) + controls + u'x'; };
            return Painted(*report, 0);
        };
        QVERIFY(painted(QStringLiteral("\r\n\t\x07")) == painted(QString(4, u' ')));
        QVERIFY(painted(QChar(0x85) + QString(QChar(0x2028))) == painted(QString(2, u' ')));
    }

    void EveryLayout_data() {
        const TestTable<QString> row("layout");
        for (const QFileInfo& file : QDir(":/layouts").entryInfoList({"dar*.json"}))
            row(file.baseName().toUtf8(), file.baseName());
    }
    /// Headings stand above their columns, and the values of the head on common lines. Readable are
    /// company lines of 50 of the widest letters, names of 100 letters, and two of them in one box.
    void EveryLayout() {
        if (!HasPdfTool())
            QSKIP("pdftotext is not there");
        QFETCH(QString, layout);
        const QString wide(50, u'W');
        const QString name = QStringLiteral("North gate, ramp 7 ").repeated(6).left(100);
        for (const auto& [text, width] :
             {std::pair(name, 3200), std::pair(name + " - " + name, 7300)}) {
            darReport report(layout);
            CountedRows rows(1);
            rows.Names.clear();
            rows.Text = [&](qsizetype) { return text; };
            std::set<int> columns, headings;
            int shown = 0;
            for (const ReportSection& section : report.Layout().sections)
                for (const ReportControl& control : section.AllControls()) {
                    const auto& [box, font, colour, alignment, thickness] = control.Style();
                    const bool inHead = section.Kind() == SectionKind::PageHeader;
                    const bool word = control.DataField().contains("Status");
                    if (control.Kind() == ControlKind::TextBox) {
                        rows.Names += control.DataField();
                        if (section.Kind() == SectionKind::Detail)
                            columns.insert(box.left());
                    } else if (report.Layout().fonts[std::size_t(font)] == FontFace{8.5, true}) {
                        headings.insert(box.left());
                    }
                    const bool inLine = inHead && box.height() == 500;
                    QVERIFY2(!inLine || box.top() % 500 == 260, qPrintable(control.Name()));
                    const bool value = inLine && control.Caption().isEmpty();
                    if (value)
                        report.SetReportParam({{control.Name(), text}});
                    shown += box.width() >= width &&
                             (value || (!control.DataField().isEmpty() && !word));
                }
            for (const int heading : headings)
                QVERIFY2(columns.contains(heading), qPrintable(QString::number(heading)));
            report.SetReportParam({{u"lblCompanyInfo", QStringList(4, wide).join("\r\n")}});
            report.SetDataSource(&rows);
            const QString pdf = PdfText(report);
            QCOMPARE(pdf.count(wide), 4);
            QVERIFY2(pdf.count(text) >= shown, qPrintable(pdf));
        }
    }

    void DateTextsAreFormatted() {
        const auto report = SmallReport();
        ReportControl& box = report->Control(u"txtName");
        box.SetDataFormat("yyyy-mm-dd HH:NN");
        for (const auto& [locale, shown] :
             {std::pair(QLocale(QLocale::English, QLocale::UnitedKingdom), "2026-11-05 22:07"),
              std::pair(QLocale(QLocale::English, QLocale::UnitedStates), "2026-05-11 22:07")}) {
            QLocale::setDefault(locale);
            for (int twice = 0; twice < 2; ++twice)
                QCOMPARE(box.TextOf(Value(QString("05/11/2026 22:07:58"))), shown);
            QCOMPARE(box.TextOf(Value(DefaultDateTimeText(Evening))), "2026-11-05 22:07");
            QCOMPARE(box.TextOf(Value(QString("soon"))), "soon");
        }
    }

    void LettersAreCondensedBeforeTheyShrink() {
        CountedRows source(1);
        const auto report = SmallReport();
        report->SetDataSource(&source);
        const auto inkOf = [&](int count) {
            source.Text = [=](qsizetype) { return QString(count, u'H'); };
            const Ink ink = InkWithin(Painted(*report, 0), 118, 11);
            return ink.bottom - ink.top;
        };
        const double plain = inkOf(1);
        // The height of the ink, as a part of a short text's.
        for (const auto& [letters, height] :
             {std::pair(20, 1.0), std::pair(30, 1.0), std::pair(40, 0.85), std::pair(70, 1.72),
              std::pair(200, 1.44)}) {
            const double part = inkOf(letters) / plain;
            QVERIFY2(std::abs(part - height) < 0.12, qPrintable(QString::number(part)));
            if (HasPdfTool()) // only the longest is shortened
                QCOMPARE(PdfText(*report).contains(u'\u2026'), letters == 200);
        }
    }

    void PdfHoldsEveryRowAndPage() {
        if (!HasPdfTool())
            QSKIP("pdftotext is not there");
        const CountedRows source(20);
        const auto report = SmallReport();
        report->SetDataSource(&source);
        const QString text = PdfText(*report);
        QCOMPARE(text.count("Row "), 20);
        QVERIFY2(text.startsWith("Beginning 1 / 3 Row 1 "), qPrintable(text));
        QVERIFY(text.count("Beginning") == 1 && text.contains("3 / 3"));
    }

    void PdfHasItsProperties() {
        if (!HasPdfTool())
            QSKIP("pdfinfo is not there");
        const TestClock clock(Evening, 0.001);
        const auto report = SmallReport();
        report->SetCaption("Nacht (1\\2) č\u0D0A");
        report->SetLanguage("de");
        const QTemporaryDir folder;
        const QString path = folder.filePath("report.pdf");
        for (const QString author : {"", "Wächter) 🔒 حارس \\"}) {
            report->SetAuthor(author);
            ExportPdf(*report, path);
            QProcess tool;
            tool.start("pdfinfo", {"-enc", "UTF-8", "-rawdates", path});
            QVERIFY(tool.waitForFinished());
            QCOMPARE(tool.readAllStandardError(), ""); // the table of places is right
            const QString info = QString::fromUtf8(tool.readAllStandardOutput()).simplified();
            QVERIFY2(info.startsWith("Title: " + report->Caption() + u' '), qPrintable(info));
            QCOMPARE(info.contains("Author:"), !author.isEmpty());
            QVERIFY2(info.contains(author + u' '), qPrintable(info));
            QVERIFY2(info.contains("CreationDate: D:20261105220758"), qPrintable(info));
            QVERIFY(BytesOf(path).contains("/Lang (de)\n"));
        }
    }

    // The texts of these pages have no letter of the language.
    void MirroredFromRightToLeft() {
        const CountedRows source(20);
        const auto report = SmallReport();
        report->SetDataSource(&source);
        const auto ink = [&] { return InkWithin(Painted(*report, 0), 118, 11); };
        QVERIFY(std::abs(ink().left - 55) < 1);
        const double width = ink().right - ink().left;
        const QByteArray text = ReportText(*report);
        report->SetLanguage("ar");
        const Ink mirrored = ink();
        QVERIFY2(std::abs(mirrored.right - 155) < 1 &&
                     std::abs(mirrored.right - mirrored.left - width) < 0.3,
                 qPrintable(QString::number(mirrored.right)));
        QString marked = QString::fromUtf8(ReportText(*report));
        QVERIFY(marked.contains(QStringLiteral("\n\u200F\u2068Row 1\u2069\n")));
        QCOMPARE(marked.remove(QRegularExpression("[\u200F\u2068\u2069]")).toUtf8(), text);
        QBuffer pdf;
        QVERIFY(pdf.open(QIODevice::WriteOnly) && ExportPdf(*report, pdf));
        QVERIFY(pdf.data().contains("/Lang (ar)\n/ViewerPreferences << /Direction /R2L >>\n"));
        report->SetLanguage("de");
        QVERIFY(std::abs(ink().left - 55) < 1);
    }

    void PlaceholdersAreTheLayoutsOnly() {
        if (!HasPdfTool())
            QSKIP("pdftotext is not there");
        const TestClock clock(Evening, 0.001);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        darTourException report;
        report.SetReportParam({{u"lblTourName", "Tour %p at 100%d"},
                               {u"lblReportTitle", "T"},
                               {u"lblCompanyInfo", "Line one\r\nLine two"}});
        report.SetText({{u"LABEL15", "%p|%P|%d|%t|%x|100%"}});
        const QString text = PdfText(report);
        for (const char* part :
             {"Tour %p at 100%d", "1|1|05/11/2026|22:07|%x|100%", "Line one", "Line two"})
            QVERIFY2(text.contains(part), qPrintable(text));
        QCOMPARE(report.Caption(), "T");
    }

    void FailedPdfLeavesNothing() {
        const auto report = SmallReport();
        QTemporaryDir folder;
        const QString path = folder.filePath("none/report.pdf");
        QVERIFY(DescriptionOf([&] { ExportPdf(*report, path); }).contains("report.pdf"));
        const QString older = folder.filePath("older.pdf");
        WriteBytes(older, "older");
        QVERIFY(!ExportPdf(*report, older, [](int, int) { return false; }));
        QCOMPARE(BytesOf(older), "older");
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("older.pdf"));
        if (QFile::exists("/dev/full")) {
            QFile full("/dev/full");
            QVERIFY(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            QVERIFY_THROWS_EXCEPTION(RunTimeError, ExportPdf(*report, full));
        }
    }
};

QTEST_MAIN(ReportTest)
#include "ReportTest.moc"
