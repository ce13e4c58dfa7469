#include "mReports.h"

#include "Clock.h"
#include "Format.h"
#include "ReportViewer.h"
#include "darReport.h"
#include "mDeclareGlobals.h"
#include "mTranslations.h"

QString CompanyText() {
    return gCompanyInfo[0] + QStringLiteral("\r\n") + gCompanyInfo[1] + QStringLiteral("\r\n") +
           gCompanyInfo[2] + QStringLiteral("\r\n") + gCompanyInfo[3];
}

QString MomentText(DateTime moment, int blanks) {
    return Format(moment, QStringLiteral("Short Date")) + QString(blanks, u' ') +
           Format(moment, QStringLiteral("Hh:Nn"));
}

QString PrintDateText(int blanks) { return MomentText(Now(), blanks); }

QString DateRangeText(DateTime from, DateTime to) {
    return FormatStr(Translate("Date Range:   From %0:s to %1:s"),
                     {MomentText(from, 1), MomentText(to, 1)});
}

QString SearchedText(const QList<ReportFilter>& filters, DateTime from, DateTime to) {
    QString text;
    for (const auto& [title, value] : filters)
        if (!value.isEmpty())
            text += Labelled(Translate(title), value) + u'\n';
    return text + Translate("From:") + u' ' + MomentText(from, 1) + u'\n' + Translate("To:") +
           u' ' + MomentText(to, 1) + u'\n' +
           Translate("Please check these choices, and whether the reader has been downloaded.");
}

void NameDocument(DataReport& report, const QStringList& about, DateTime from, DateTime to) {
    constexpr qsizetype LongestPart = 30;
    QStringList parts{report.Caption()};
    for (const QString& part : about)
        parts += part.left(LongestPart).trimmed();
    const auto day = [](DateTime date) { return Format(date, QStringLiteral("yyyy-mm-dd")); };
    parts += day(from);
    if (to.DatePart() != from.DatePart())
        parts += day(to);
    parts.removeAll({});
    report.SetDocumentName(parts.join(QStringLiteral(" - ")));
}

void SetFrameText(darReport& report, QStringView printDate, QStringView product, QStringView page,
                  QStringView endOfReport) {
    report.SetText({{printDate, Translate("Print Date:")},
                    {product, GetReportsTitle()},
                    {page, Translate("Page")},
                    {endOfReport, Translate("End Of Report")}});
}

void ShowLayoutFrame(DataReport& report, ReportViewer& viewer) { viewer.Show(report); }
