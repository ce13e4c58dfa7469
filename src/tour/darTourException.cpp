#include "darTourException.h"

darTourException::darTourException()
    : DataReport(LoadReportLayout(QStringLiteral("darTourException"))) {}

void darTourException::SetReportParam(const QString& printDate, const QString& tourDate,
                                      const QString& tourName, const QString& reader,
                                      const QString& title, const QString& tolerance,
                                      const QString& companyInfo, const QString& showEvents) {
    ReportSection& header = Sections(u"Section2");
    const auto set = [&](QStringView control, const QString& value) {
        header.Controls(control).SetCaption(value, CaptionKind::Literal);
    };
    set(u"lblPrintDate", printDate);
    set(u"lblDateRange", tourDate);
    set(u"lblTourName", tourName);
    set(u"lblReaderID", reader);
    set(u"lblReportTitle", title);
    SetCaption(title);
    set(u"lblTolerance", tolerance);
    set(u"lblCompanyInfo", companyInfo);
    set(u"lblOptions", showEvents);
}

void darTourException::SetText(const QString& printDate, const QString& productTitle,
                               const QString& page, const QString& readerId,
                               const QString& tourDate, const QString& tourName,
                               const QString& tolerance, const QString& time,
                               const QString& siteLocation, const QString& status,
                               const QString& endOfReport, const QString& showEvents) {
    ReportSection& header = Sections(u"Section2");
    const auto set = [&](QStringView control, const QString& text) {
        header.Controls(control).SetCaption(text);
    };
    set(u"Label17", printDate);
    set(u"Label19", productTitle);
    set(u"Label16", page);
    set(u"lblTitleReaderID", readerId);
    set(u"lblDate", tourDate);
    set(u"lblTitleTourName", tourName);
    set(u"lblTitleTolerance", tolerance);
    set(u"lblTitleTourTime", time);
    set(u"lblSite", siteLocation);
    set(u"lblActualTime", status);
    Sections(u"Section5").Controls(u"lblEndOfReport").SetCaption(endOfReport);
    set(u"lblShowEvents", showEvents);
}
