// The preview window, driven by its keys and its wheel, and printing.

#include "FileDialogs.h"
#include "PrintReport.h"
#include "ScriptedBoxes.h"
#include "SmallReport.h"
#include "frmPreview.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <array>
#include <cmath>

namespace {

const TranslateText AsItIs = [](const QString& text) { return text; };

/// A preview on the screen.
class Shown {
public:
    explicit Shown(const RowSource& rows) : report(SmallReport()) {
        report->SetDataSource(&rows);
        report->SetCaption("A report");
        window = std::make_unique<frmPreview>(*report, AsItIs, nullptr);
        window->show();
        page = Find<QScrollArea>("scrPage");
        if (!QTest::qWaitForWindowExposed(window.get()) ||
            !QTest::qWaitFor([this] { return window->PagesPainted() > 0; }))
            qFatal("the preview does not open");
    }
    template <typename T>
    T* Find(const char* name) const {
        return window->findChild<T*>(QString::fromLatin1(name));
    }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(page, static_cast<Qt::Key>(key), modifiers);
    }
    void Wheel(int delta, Qt::KeyboardModifiers modifiers = {}) const {
        QWheelEvent event(QPointF(50, 50), page->mapToGlobal(QPointF(50, 50)), {}, {0, delta},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page->viewport(), &event);
    }
    QString Zoom() const { return Find<QLabel>("lblZoom")->text(); }

    std::unique_ptr<DataReport> report;
    std::unique_ptr<frmPreview> window;
    QScrollArea* page = nullptr;
};

/// Exports under a name typed into the file dialog; gives the name that the dialog proposed.
QString Export(const Shown& preview, const QString& path) {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QString proposed;
    QTimer::singleShot(300, preview.page, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        proposed = QFileInfo(dialog->selectedFiles().value(0)).fileName();
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
    preview.Find<QAction>("pdf")->trigger();
    return proposed;
}

} // namespace

class PreviewTest : public QObject {
    Q_OBJECT

private slots:
    void NamesOfFiles() {
        const QString much = QString("€").repeated(300), half(QChar(0xd83d));
        const std::pair<QString, QString> cases[] = {
            {"Tour Report - Night - 2026-11-22", "Tour Report - Night - 2026-11-22"},
            {"../..\\a/b:c*d?e\"f<g>h|i\n" + half, "a b c d e f g h i"},
            {QString::fromUtf8("a\u202egpj.exe\u200b "), "a gpj.exe"},
            {".hidden. .", "hidden"},
            {"CON", "CON_"},
            {" / ", ""}};
        for (const auto& [text, name] : cases)
            QCOMPARE(SafeFileName(text), name);
        QVERIFY(SafeFileName(much).toUtf8().size() <= 200 && !SafeFileName(much).isEmpty());
    }

    // Of each icon, the strongest pixel: on the window, and on a selected row.
    void IconsCanBeSeen() {
        const auto light = [](const QColor& colour) {
            const auto part = [](double value) {
                return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
            };
            return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
                   0.0722 * part(colour.blueF()) + 0.05;
        };
        const QPalette before = QApplication::palette();
        for (const auto& [window, text, chosen, chosenText] :
             {std::array<QColor, 4>{"#efefef", "#000000", "#308cc6", "#ffffff"},
              {"#2d2d2d", "#ffffff", "#1d6fc0", "#ffffff"},
              {"#000000", "#ffffff", "#ffff00", "#000000"}}) {
            QPalette palette(window, window);
            palette.setColor(QPalette::WindowText, text);
            palette.setColor(QPalette::Highlight, chosen);
            palette.setColor(QPalette::HighlightedText, chosenText);
            QApplication::setPalette(palette);
            for (const QString& file : QDir(":/icons").entryList())
                for (const auto mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected}) {
                    const QString name = QFileInfo(file).baseName();
                    if (name == "wardlock" || name == "splash") // pictures
                        continue;
                    const double ground = light(mode == QIcon::Selected ? chosen : window);
                    const QImage image = ProgramIcon(name).pixmap(24, 24, mode).toImage();
                    double best = 1;
                    for (int at = 0; at < image.width() * image.height(); ++at)
                        if (const QColor pixel =
                                image.pixelColor(at % image.width(), at / image.width());
                            pixel.alpha() == 255)
                            best = std::max(best, std::max(light(pixel), ground) /
                                                      std::min(light(pixel), ground));
                    QVERIFY2(best >= 3, qPrintable(name + " on " + window.name()));
                }
        }
        QApplication::setPalette(before);
    }

    void PreviewIsDrivenByKeys() {
        const CountedRows source(100'000);
        const Shown shown(source);
        const frmPreview& preview = *shown.window;
        QVERIFY(preview.PagesPainted() < 5);
        QCOMPARE(preview.windowTitle(), "A report");
        const int pages = shown.report->PageCount();
        for (const auto& [key, page] :
             {std::pair(Qt::Key_PageDown, 1), std::pair(Qt::Key_End, pages - 1),
              std::pair(Qt::Key_PageUp, pages - 2), std::pair(Qt::Key_Home, 0)}) {
            shown.Key(key);
            QCOMPARE(preview.Page(), page);
            QCOMPARE(shown.Find<QAction>("next")->isEnabled(), page < pages - 1);
        }
        auto* field = shown.Find<QLineEdit>("txtPage");
        shown.Key(Qt::Key_G, Qt::ControlModifier);
        QTest::keyClicks(field, "777");
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(preview.Page(), 776);
        QCOMPARE(field->text(), "777");
        for (const auto& [key, zoom] :
             {std::pair(Qt::Key_0, "100 %"), std::pair(Qt::Key_Equal, "125 %"),
              std::pair(Qt::Key_Minus, "100 %"), std::pair(Qt::Key_Minus, "75 %")}) {
            shown.Key(key, Qt::ControlModifier);
            QCOMPARE(shown.Zoom(), zoom);
        }
        for (const auto* button : preview.findChildren<QWidget*>())
            if (button->inherits("QToolButton") && button->isVisible())
                QVERIFY(!button->accessibleName().isEmpty());
        shown.Key(Qt::Key_Escape);
        QVERIFY(!preview.isVisible());
    }
    void WheelTurnsPagesAndZooms() {
        const CountedRows rows(100);
        const Shown preview(rows);
        preview.Key(Qt::Key_2, Qt::ControlModifier); // the whole page: nothing to scroll
        for (int step = 0; step < 3; ++step)
            preview.Wheel(-40); // a touch pad's steps make one notch
        QCOMPARE(preview.window->Page(), 1);
        preview.Wheel(-120);
        QCOMPARE(preview.window->Page(), 2);
        preview.Wheel(120);
        QCOMPARE(preview.window->Page(), 1);

        preview.Key(Qt::Key_0, Qt::ControlModifier);
        preview.Wheel(120, Qt::ControlModifier);
        QCOMPARE(preview.Zoom(), "125 %");
        QCOMPARE(preview.window->Page(), 1);
        preview.Wheel(-120); // now there is something to scroll
        QCOMPARE(preview.window->Page(), 1);
        QVERIFY(preview.page->verticalScrollBar()->value() > 0);
    }

    void ExportsUnderTheNameTyped() {
        const CountedRows rows(100);
        const Shown preview(rows);
        const QTemporaryDir folder;
        const QString path = folder.filePath("typed name");
        ScriptedBoxes boxes;
        QCOMPARE(Export(preview, path), "A report.pdf");
        QCOMPARE(boxes.TakeTexts(), QStringList());
        QFile file(path + QStringLiteral(".pdf"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().endsWith("%%EOF\n"));
    }

    void RowsThatFailAreReported() {
        CountedRows rows(100);
        rows.Text = [](qsizetype) -> QString {
            throw RunTimeError(RunTimeErrorNumber::ObjectClosed, "is closed");
        };
        const Shown preview(rows); // shows the failure instead of the page
        const QTemporaryDir folder;
        ScriptedBoxes boxes;
        Export(preview, folder.filePath("report"));
        QCOMPARE(boxes.TakeTexts(), QStringList{"The report could not be exported.\r\nis closed"});
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void PrintsThePagesAskedFor() {
        if (!HasPdfTool())
            QSKIP("pdftotext is not there");
        struct Job {
            QPrinter::PrintRange range;
            const char* ranges;
            bool lastFirst;
            int copies;
            const char* pages;
        };
        const CountedRows rows(30);
        const auto report = SmallReport();
        report->SetDataSource(&rows);
        for (const Job& job : {Job{QPrinter::AllPages, "", false, 1, "1 2 3 4"},
                               {QPrinter::PageRange, "2-3", false, 1, "2 3"},
                               {QPrinter::PageRange, "2,4", false, 1, "2 4"},
                               {QPrinter::PageRange, "3-9", false, 1, "3 4"}, // beyond the end
                               {QPrinter::CurrentPage, "", false, 1, "3"},
                               {QPrinter::PageRange, "1,3-4", true, 1, "4 3 1"},
                               {QPrinter::PageRange, "1-2", false, 2, "1 2 1 2"}}) {
            const QTemporaryDir folder;
            QPrinter printer(QPrinter::HighResolution);
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(folder.filePath("print.pdf"));
            printer.setPrintRange(job.range);
            printer.setPageRanges(QPageRanges::fromString(job.ranges));
            printer.setPageOrder(job.lastFirst ? QPrinter::LastPageFirst
                                               : QPrinter::FirstPageFirst);
            printer.setCopyCount(job.copies);
            printer.setCollateCopies(true);
            if (job.copies > 1 && printer.supportsMultipleCopies())
                QSKIP("the printer makes the copies");
            PrintReport(*report, printer, 2);
            QStringList printed;
            static const QRegularExpression number("(\\d) / 4");
            for (const auto& match : number.globalMatch(TextOfPdf(printer.outputFileName())))
                printed += match.captured(1);
            QCOMPARE(printed.join(u' '), job.pages);
        }
    }

    void PrintsAllOrNothing() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("print.pdf");
        const auto write = [&](const CountedRows& rows, const WorkProgress& progress = {}) {
            QPrinter printer;
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            const auto report = SmallReport();
            report->SetDataSource(&rows);
            return PrintReport(*report, printer, 0, progress);
        };
        const auto written = [&] { return QFileInfo(path).size(); };
        CountedRows rows(100);
        QVERIFY(write(rows));
        const qint64 whole = written();
        QVERIFY(whole > 0);
        QVERIFY(!write(rows, [](int done, int all) { return done < all / 2; }));
        QCOMPARE(written(), whole);
        rows.Text = [](qsizetype row) {
            if (row > 50)
                throw RunTimeError(RunTimeErrorNumber::ObjectClosed, "is closed");
            return QString();
        };
        QVERIFY_THROWS_EXCEPTION(RunTimeError, write(rows));
        QCOMPARE(written(), whole);

        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName("/none/print.pdf");
        QVERIFY_THROWS_EXCEPTION(RunTimeError, PrintReport(*SmallReport(), printer, 0));
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(7, 9);
        printer.setOutputFileName(folder.filePath("no such page.pdf"));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, PrintReport(*SmallReport(), printer, 0));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("print.pdf"));
    }

    void LongExportIsCancelled() {
        CountedRows rows(2'000);
        const Shown preview(rows);
        rows.Text = [](qsizetype) {
            QThread::msleep(2);
            return QString();
        };
        const QTemporaryDir folder;
        ScriptedBoxes boxes;
        bool othersBlocked = false;
        bool arrow = false;
        const Hourglass callersOwn;
        QTimer watch;
        connect(&watch, &QTimer::timeout, [&] {
            auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            if (!progress)
                return;
            preview.Key(Qt::Key_End);
            arrow = QApplication::overrideCursor()->shape() == Qt::ArrowCursor;
            othersBlocked = preview.window->Page() == 0;
            progress->findChild<QPushButton*>()->click();
        });
        watch.start(50);
        QElapsedTimer elapsed;
        elapsed.start();
        Export(preview, folder.filePath("report"));
        QVERIFY(elapsed.elapsed() < 4'000); // all of it would take longer
        QVERIFY(othersBlocked && arrow);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QCOMPARE(boxes.TakeTexts(), QStringList());
        QVERIFY(QDir(folder.path()).isEmpty());
    }
};

QTEST_MAIN(PreviewTest)
#include "PreviewTest.moc"
