#include "ConsoleReport.h"

#include "ReportExport.h"
#include "ReportPdf.h"

#include <QBuffer>

void ConsoleReport::Show(DataReport& report) {
    switch (m_format) {
    case ReportFormat::Text:
        m_bytes = ReportText(report);
        break;
    case ReportFormat::Json:
        m_bytes = ReportJson(report);
        break;
    case ReportFormat::Csv:
        m_bytes = ReportCsv(report);
        break;
    case ReportFormat::Pdf: {
        QBuffer buffer(&m_bytes);
        buffer.open(QIODevice::WriteOnly);
        ExportPdf(report, buffer);
        break;
    }
    }
    m_hasReport = true;
}

QByteArray JsonMessage(const QString& message) {
    return "{\"message\": " + JsonText(message) + "}\n";
}
