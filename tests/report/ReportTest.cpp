// The report engine and its preview: pages by arithmetic, captions, faulty layouts, PDF, and the
// window driven by its keys.

#include "DataReport.h"
#include "DateTime.h"
#include "PreviewCanvas.h"
#include "ReportPdf.h"
#include "RowSource.h"
#include "RunTimeError.h"
#include "darTourException.h"
#include "frmPreview.h"

#include <QAction>
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString PdfText(const DataReport& report) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("report.pdf"));
    ExportPdf(report, path, QStringLiteral("Title"));
    QProcess tool;
    tool.start(QStringLiteral("pdftotext"),
               {QStringLiteral("-raw"), path, QStringLiteral("-")});
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput()).simplified();
}

QImage Painted(const DataReport& report, int page) {
    QImage image(420, 594, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(0.02, 0.02);
    report.PaintPage(painter, page, DateTime::FromDays(46000));
    return image;
}

} // namespace

class ReportTest : public QObject {
    Q_OBJECT

private slots:
    void PagesByArithmetic_data() {
        QTest::addColumn<qsizetype>("rows");
        QTest::addColumn<int>("footer");
        QTest::addColumn<int>("pages");
        QTest::addColumn<qsizetype>("onLast");
        QTest::newRow("none") << qsizetype(0) << 10 << 1 << qsizetype(0);
        QTest::newRow("one") << qsizetype(1) << 10 << 1 << qsizetype(1);
        QTest::newRow("full with footer") << qsizetype(7) << 10 << 1 << qsizetype(7);
        QTest::newRow("footer does not fit") << qsizetype(8) << 10 << 2 << qsizetype(0);
        QTest::newRow("one more") << qsizetype(9) << 10 << 2 << qsizetype(1);
        QTest::newRow("full without footer") << qsizetype(8) << 0 << 1 << qsizetype(8);
        QTest::newRow("second full") << qsizetype(17) << 0 << 2 << qsizetype(9);
        QTest::newRow("third page") << qsizetype(18) << 0 << 3 << qsizetype(1);
        QTest::newRow("many") << qsizetype(1'000'000) << 10 << 111'112 << qsizetype(2);
    }
    void PagesByArithmetic() {
        QFETCH(qsizetype, rows);
        QFETCH(int, footer);
        QFETCH(int, pages);
        QFETCH(qsizetype, onLast);
        const CountedRows source(rows);
        const auto report = SmallReport(SmallLayout(footer));
        report->SetDataSource(&source);
        QCOMPARE(report->PageCount(), pages);
        qsizetype next = 0;
        for (int page = 0; page < pages; ++page) {
            const auto run = report->RowsOfPage(page);
            QVERIFY(run.count == 0 || run.first == next);
            next += run.count;
        }
        QCOMPARE(next, rows);
        QCOMPARE(report->RowsOfPage(pages - 1).count, onLast);
        QCOMPARE(source.Reads, 0);
    }

    void OnePageReadsItsOwnRowsOnly() {
        const CountedRows source(100'000);
        const auto report = SmallReport();
        report->SetDataSource(&source);
        Painted(*report, 5'000);
        QCOMPARE(source.Reads, 9);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, Painted(*report, report->PageCount()));
    }

    void UnknownNamesAreRefused() {
        const auto report = SmallReport();
        QVERIFY_THROWS_EXCEPTION(RunTimeError, report->Sections(u"Nowhere"));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, report->Sections(u"Top").Controls(u"lblNone"));
        class Other : public CountedRows {
        public:
            Other() : CountedRows(1) {}
            int Column(QStringView name) const override {
                throw RunTimeError(RunTimeErrorNumber::NoSuchItem, name.toString());
            }
        } other;
        QVERIFY_THROWS_EXCEPTION(RunTimeError, report->SetDataSource(&other));
        QVERIFY(!report->DataSource());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, LoadReportLayout(QStringLiteral("darNone")));
    }

    void FaultyLayoutsAreNamed_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QByteArray>("named");
        QTest::newRow("no JSON") << QByteArray("{") << QByteArray("[") << QByteArray("test.json");
        QTest::newRow("kind") << QByteArray("\"detail\"") << QByteArray("\"tail\"")
                              << QByteArray("Row");
        QTest::newRow("type") << QByteArray("\"textBox\"") << QByteArray("\"box\"")
                              << QByteArray("txtName");
        QTest::newRow("no field") << QByteArray("\"field\": \"tName\",") << QByteArray()
                                  << QByteArray("txtName");
        QTest::newRow("width is text") << QByteArray("\"width\": 60") << QByteArray("\"width\": \"x\"")
                                       << QByteArray("lblPage");
        QTest::newRow("row higher than the page") << QByteArray("\"detail\", \"height\": 10")
                                                  << QByteArray("\"detail\", \"height\": 500")
                                                  << QByteArray("test.json");
    }
    void FaultyLayoutsAreNamed() {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QByteArray, named);
        const QByteArray json = SmallLayout().replace(from, to);
        QString text;
        try {
            ReadReportLayout(json, QStringLiteral("test.json"));
        } catch (const RunTimeError& error) {
            text = error.Description();
        }
        QVERIFY2(text.contains(QString::fromUtf8(named)), qPrintable(text));
    }

    void PdfHoldsEveryRowAndPage() {
        if (QProcess::execute(QStringLiteral("pdftotext"), {QStringLiteral("-v")}) != 0)
            QSKIP("pdftotext is not there");
        const CountedRows source(20);
        const auto report = SmallReport();
        report->SetDataSource(&source);
        const QString text = PdfText(*report);
        QString rows;
        for (int row = 9; row <= 17; ++row) // those of the second page
            rows += QStringLiteral("Row %1 ").arg(row);
        QVERIFY2(text.contains(rows), qPrintable(text));
        QCOMPARE(text.count(QStringLiteral("Row ")), 20);
        QVERIFY(text.contains(QStringLiteral("1 / 3")) && text.contains(QStringLiteral("3 / 3")));
    }

    void PlaceholdersAreTheLayoutsOnly() {
        if (QProcess::execute(QStringLiteral("pdftotext"), {QStringLiteral("-v")}) != 0)
            QSKIP("pdftotext is not there");
        darTourException report;
        report.SetReportParam({}, {}, QStringLiteral("Tour %p at 100%d"), {}, QStringLiteral("T"),
                              {}, QStringLiteral("Line one\r\nLine two"), {});
        const QString text = PdfText(report);
        QVERIFY(text.contains(QStringLiteral("Tour %p at 100%d")));
        QVERIFY(text.contains(QStringLiteral("1 / 1")));
        QVERIFY(text.contains(QStringLiteral("Line one")) &&
                text.contains(QStringLiteral("Line two")));
        QCOMPARE(report.Caption(), QStringLiteral("T"));
    }

    void FailedPdfLeavesNothing() {
        const auto report = SmallReport();
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("none/report.pdf"));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, ExportPdf(*report, path, {}));
        if (QFile::exists(QStringLiteral("/dev/full"))) {
            QFile full(QStringLiteral("/dev/full"));
            QVERIFY(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            QVERIFY_THROWS_EXCEPTION(RunTimeError, ExportPdf(*report, full, {}));
        }
    }
};

QTEST_MAIN(ReportTest)
#include "ReportTest.moc"
