#include "PrintReport.h"

#include "Clock.h"
#include "OutputFile.h"
#include "RunTimeError.h"

#include <QDir>
#include <QPainter>
#include <QPrintEngine>
#include <QPrinter>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#include <cups/cups.h>
#endif
#include <vector>

namespace {

constexpr int PrinterError = 482;

/// What the print dialog leaves for the printing system beside the printer's own settings: names
/// and values in turn. It has no name in Qt's public headers.
QStringList SystemOptions(const QPrinter& printer) {
    constexpr auto key = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);
    return printer.printEngine()->property(key).toStringList();
}

/// The dialog also asks the printing system for the pages. They are chosen here, where the numbers
/// are those of the report, and must not be chosen again among the sheets of the job.
const QString PageRangesOption = QStringLiteral("page-ranges");
const QString PageSetOption = QStringLiteral("page-set");

/// Whether odd or even pages alone are asked for.
std::function<bool(int)> PageSet(const QPrinter& printer) {
    const QStringList options = SystemOptions(printer);
    const qsizetype at = options.indexOf(PageSetOption);
    const QString set = at < 0 ? QString() : options.value(at + 1);
    if (set != u"odd" && set != u"even")
        return [](int) { return true; };
    // The dialog counts from the first page of the range.
    const bool counted = printer.printRange() == QPrinter::PageRange && printer.fromPage() % 2 == 0;
    const bool odd = (set == u"odd") != counted;
    return [odd](int number) { return (number % 2 == 1) == odd; };
}

/// The sheets of one print job, in the order in which they leave the printer.
std::vector<int> SheetsOf(const QPrinter& printer, int pageCount, int currentPage) {
    std::vector<int> pages;
    if (printer.printRange() == QPrinter::CurrentPage) {
        pages = {currentPage};
    } else {
        const QPageRanges ranges = printer.pageRanges();
        const bool some = printer.printRange() == QPrinter::PageRange && !ranges.isEmpty();
        const auto inSet = PageSet(printer);
        for (int number = 1; number <= pageCount; ++number)
            if ((!some || ranges.contains(number)) && inSet(number))
                pages.push_back(number - 1);
    }
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    const int runs = printer.collateCopies() ? copies : 1;
    std::vector<int> sheets;
    for (int run = 0; run < runs; ++run)
        for (const int page : pages)
            sheets.insert(sheets.end(), static_cast<std::size_t>(copies / runs), page);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(sheets.begin(), sheets.end());
    return sheets;
}

/// Puts the report's paper into the middle of the printer's, and scales it down where it is larger.
void FitPaper(QPainter& painter, const QPrinter& printer, QSizeF page) {
    const QSizeF sheet = printer.paperRect(QPrinter::DevicePixel).size();
    const double scale = std::min({printer.logicalDpiX() / DataReport::UnitsPerInch,
                                   sheet.width() / page.width(), sheet.height() / page.height()});
    painter.translate((sheet.width() - page.width() * scale) / 2,
                      (sheet.height() - page.height() * scale) / 2);
    painter.scale(scale, scale);
}

[[noreturn]] void PrintingFailed(const QPrinter& printer, const QString& reason = {}) {
    throw RunTimeError(
        PrinterError,
        (QStringLiteral("The printer \"%1\" takes no pages. ").arg(printer.printerName()) + reason)
            .trimmed());
}

/// Paints all sheets of a job; false if `progress` ended it.
bool PaintJob(const DataReport& report, QPrinter& printer, const std::vector<int>& sheets,
              const PageProgress& progress) {
    bool cancelled = false;
    QPainter painter;
    if (!painter.begin(&printer))
        PrintingFailed(printer);
    auto abort = qScopeGuard([&] { printer.abort(); });
    FitPaper(painter, printer, report.PageSize());
    const bool painted =
        report.PaintSheets(painter, printer, sheets, Now(), [&](int done, int all) {
            cancelled = progress && !progress(done, all);
            return !cancelled;
        });
    if (cancelled)
        return false;
    if (painted)
        abort.dismiss();
    if (!painter.end() || !painted || printer.printerState() == QPrinter::Error)
        PrintingFailed(printer);
    return true;
}

/// The bytes of a painted job. The painter looks at no failed write; the end of the document does.
QByteArray JobOf(const QPrinter& printer, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        PrintingFailed(printer, file.errorString());
    QByteArray job = file.readAll();
    if (!job.endsWith("%%EOF\n"))
        PrintingFailed(printer, QStringLiteral("There is no room in \"%1\".")
                                    .arg(QDir::toNativeSeparators(QFileInfo(path).path())));
    return job;
}

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
constexpr bool PrintsFiles = true;

void SendToPrinter(const QPrinter& printer, const QString& path) {
    int count = 0;
    cups_option_t* options = nullptr;
    const auto freeOptions = qScopeGuard([&] { cupsFreeOptions(count, options); });
    const auto add = [&](const QString& name, const QString& value) {
        count = cupsAddOption(name.toLocal8Bit().constData(), value.toLocal8Bit().constData(),
                              count, &options);
    };
    add(QStringLiteral("media"), printer.pageLayout().pageSize().key());
    add(QStringLiteral("sides"),
        printer.duplex() == QPrinter::DuplexNone        ? QStringLiteral("one-sided")
        : printer.duplex() == QPrinter::DuplexShortSide ? QStringLiteral("two-sided-short-edge")
                                                        : QStringLiteral("two-sided-long-edge"));
    if (printer.copyCount() > 1) {
        add(QStringLiteral("copies"), QString::number(printer.copyCount()));
        if (printer.collateCopies())
            add(QStringLiteral("Collate"), QStringLiteral("True"));
    }
    const QStringList chosen = SystemOptions(printer);
    for (qsizetype i = 0; i + 1 < chosen.size(); i += 2)
        if (chosen[i] != PageRangesOption && chosen[i] != PageSetOption)
            add(chosen[i], chosen[i + 1]);
    // What follows a slash is a set of the user's preferences for that printer.
    const QString name = printer.printerName().section(u'/', 0, 0);
    if (cupsPrintFile(name.toLocal8Bit().constData(), QFile::encodeName(path).constData(),
                      printer.docName().toUtf8().constData(), count, options) == 0)
        PrintingFailed(printer, QString::fromUtf8(cupsLastErrorString()));
}
#else
constexpr bool PrintsFiles = false;

void SendToPrinter(const QPrinter&, const QString&) {}
#endif

} // namespace

/// Where the printing system takes files, the job is painted into one first: on a queue, what has
/// been painted cannot be taken back, and abort() does nothing. So it is with a PDF.
bool PrintReport(const DataReport& report, QPrinter& printer, int currentPage,
                 const PageProgress& progress) {
    const std::vector<int> sheets = SheetsOf(printer, report.PageCount(), currentPage);
    if (sheets.empty())
        PrintingFailed(printer, QStringLiteral("The report has none of the pages asked for."));
    printer.setFullPage(true);
    const bool toFile = printer.outputFormat() == QPrinter::PdfFormat;
    if (!toFile && !PrintsFiles)
        return PaintJob(report, printer, sheets, progress);

    const QString target = printer.outputFileName();
    const QTemporaryDir folder;
    if (!folder.isValid())
        PrintingFailed(printer, folder.errorString());
    const QString spool =
        folder.filePath(toFile ? QStringLiteral("job.pdf") : QStringLiteral("job"));
    printer.setOutputFileName(spool);
    const auto restore = qScopeGuard([&] { printer.setOutputFileName(target); });
    if (!PaintJob(report, printer, sheets, progress))
        return false;
    const QByteArray job = JobOf(printer, spool);
    if (!toFile) {
        SendToPrinter(printer, spool);
        return true;
    }
    OutputFile file(target);
    file.Write(job);
    file.Commit();
    return true;
}
