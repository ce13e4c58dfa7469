#include "PrintReport.h"

#include "Clock.h"
#include "DataReport.h"
#include "RunTimeError.h"

#include <QPainter>
#include <QPrinter>

#include <algorithm>
#include <vector>

namespace {

constexpr int PrinterError = 482;

/// The sheets of one print job, in the order in which they leave the printer.
std::vector<int> SheetsOf(const QPrinter& printer, int pageCount, int currentPage) {
    int first = 0;
    int last = pageCount - 1;
    if (printer.printRange() == QPrinter::CurrentPage) {
        first = last = currentPage;
    } else if (printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0) {
        first = std::min(printer.fromPage() - 1, last);
        last = std::clamp(printer.toPage() - 1, first, last);
    }
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    const int runs = printer.collateCopies() ? copies : 1;
    std::vector<int> sheets;
    for (int run = 0; run < runs; ++run)
        for (int page = first; page <= last; ++page)
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

[[noreturn]] void PrintingFailed(const QPrinter& printer) {
    throw RunTimeError(
        PrinterError,
        QStringLiteral("The printer \"%1\" takes no pages.").arg(printer.printerName()));
}

} // namespace

void PrintReport(const DataReport& report, QPrinter& printer, int currentPage) {
    printer.setFullPage(true);
    const DateTime printedAt = Now();
    QPainter painter;
    if (!painter.begin(&printer))
        PrintingFailed(printer);
    FitPaper(painter, printer, report.PageSize());
    bool firstSheet = true;
    for (const int page : SheetsOf(printer, report.PageCount(), currentPage)) {
        if (!firstSheet && !printer.newPage())
            PrintingFailed(printer);
        firstSheet = false;
        report.PaintPage(painter, page, printedAt);
    }
    const bool ended = painter.end();
    if (!ended || printer.printerState() == QPrinter::Error ||
        printer.printerState() == QPrinter::Aborted)
        PrintingFailed(printer);
}
