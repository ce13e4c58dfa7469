#include "mReports.h"

#include "Clock.h"
#include "Format.h"
#include "ReportViewer.h"
#include "mDeclareGlobals.h"

QString CompanyText() {
    return gCompanyInfo[0] + QStringLiteral("\r\n") + gCompanyInfo[1] + QStringLiteral("\r\n") +
           gCompanyInfo[2] + QStringLiteral("\r\n") + gCompanyInfo[3];
}

QString PrintDateText(int blanks) {
    const DateTime now = Now();
    return Format(now, QStringLiteral("Short Date")) + QString(blanks, u' ') +
           Format(now, QStringLiteral("Hh:Nn"));
}

void ShowLayoutFrame(DataReport& report, ReportViewer& viewer) { viewer.Show(report); }
