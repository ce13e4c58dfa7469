#include "darReport.h"

#include "mDeclareGlobals.h"
#include "mTranslations.h"

darReport::darReport(const QString& layout) : DataReport(LoadReportLayout(layout)) {
    SetAuthor(gCompanyInfo[0].trimmed());
    SetLanguage(PresentLocale());
}

void darReport::SetReportParam(const ReportTexts& values) {
    for (const auto& [name, value] : values) {
        Control(name).SetCaption(value, CaptionKind::Literal);
        if (name == u"lblReportTitle")
            SetCaption(value);
    }
}

void darReport::SetText(const ReportTexts& labels) {
    for (const auto& [name, text] : labels)
        Control(name).SetCaption(text);
}
