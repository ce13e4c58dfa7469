#include "PrintReport.h"

#include "Clock.h"
#include "OutputFile.h"
#include "PrintQueue.h"

#include <QDir>
#include <QPainter>
#include <QPrinter>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

/// Whether a page number is asked for: the dialog can ask for odd or even pages only.
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

/// Centres the report's paper on the printer's, scaled down if it is larger.
void FitPaper(QPainter& painter, const QPrinter& printer, QSizeF page) {
    const QSizeF sheet = printer.paperRect(QPrinter::DevicePixel).size();
    const double scale = std::min({printer.logicalDpiX() / DataReport::UnitsPerInch,
                                   sheet.width() / page.width(), sheet.height() / page.height()});
    painter.translate((sheet.width() - page.width() * scale) / 2,
                      (sheet.height() - page.height() * scale) / 2);
    painter.scale(scale, scale);
}

/// Paints all sheets of a job; false if `progress` ended it.
bool PaintJob(const DataReport& report, QPrinter& printer, const std::vector<int>& sheets,
              const WorkProgress& progress) {
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

/// The bytes of a painted job. The painter ignores failed writes, so this checks that the document
/// is complete.
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

} // namespace

/// If the printing system takes files, the job is painted into one first: what has been painted to
/// a queue cannot be taken back, and abort() does nothing. The same goes for a PDF.
bool PrintReport(const DataReport& report, QPrinter& printer, int currentPage,
                 const WorkProgress& progress) {
    if (const QString fault = FontFault(report.Language()); !fault.isEmpty())
        PrintingFailed(printer, fault);
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
