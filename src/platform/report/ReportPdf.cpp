#include "ReportPdf.h"

#include "Clock.h"
#include "OutputFile.h"
#include "PdfStream.h"
#include "RunTimeError.h"

#include <QPainter>
#include <QPdfWriter>

#include <numeric>

namespace {

[[noreturn]] void Fail(const QString& reason) {
    throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                       QStringLiteral("The PDF cannot be written: ") + reason);
}

} // namespace

bool ExportPdf(const DataReport& report, QIODevice& device, const WorkProgress& progress) {
    if (const QString fault = FontFault(report.Language()); !fault.isEmpty())
        Fail(fault);
    const DateTime printedAt = Now();
    PdfStream stream(device, {report.Caption(), report.Author(), report.Language(),
                              report.RightToLeft(), printedAt});
    QPdfWriter writer(&stream);
    writer.setPageSize(report.Paper());
    writer.setPageMargins(QMarginsF());
    // The pages' own unit: nothing is scaled, and the numbers in the document are short.
    writer.setResolution(static_cast<int>(DataReport::UnitsPerInch));
    QPainter painter;
    if (!painter.begin(&writer))
        Fail(device.errorString());
    std::vector<int> pages(static_cast<std::size_t>(report.PageCount()));
    std::iota(pages.begin(), pages.end(), 0);
    const bool all =
        report.PaintSheets(painter, writer, pages, printedAt, [&](int done, int count) {
            return stream.Failure().isNull() && (!progress || progress(done, count));
        });
    painter.end();
    if (all)
        stream.AppendProperties();
    if (!stream.Failure().isNull())
        Fail(stream.Failure());
    return all;
}

bool ExportPdf(const DataReport& report, const QString& path, const WorkProgress& progress) {
    OutputFile file(path);
    if (!ExportPdf(report, file.Device(), progress))
        return false;
    file.Commit();
    return true;
}
