#include "ConsoleReport.h"

#include "DataReport.h"
#include "ReportPdf.h"
#include "RowSource.h"
#include "TourExceptionTable.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

/// Not by way of a JSON object, which would order the columns by their names.
QByteArray JsonText(const QString& text) {
    const QByteArray wrapped = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2);
}

QByteArray Json(const DataReport& report) {
    const RowSource& rows = *report.DataSource();
    QByteArray json = "{\"title\": " + JsonText(report.Caption()) + ", \"rows\": [";
    for (qsizetype row = 0; row < rows.RowCount(); ++row) {
        json += row == 0 ? "\n{" : ",\n{";
        for (const QString& name : TourExceptionTable::ColumnNames()) {
            const int column = rows.Column(name);
            if (!json.endsWith('{'))
                json += ", ";
            json += JsonText(name) + ": " +
                    (rows.ValueAt(row, column).IsNull() ? QByteArray("null")
                                                : JsonText(rows.TextAt(row, column)));
        }
        json += '}';
    }
    return json + "\n]}\n";
}

QString CsvField(QString text) { return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"'; }

QByteArray Csv(const DataReport& report) {
    const RowSource& rows = *report.DataSource();
    const QStringList& names = TourExceptionTable::ColumnNames();
    QString csv;
    for (const QString& name : names)
        csv += (csv.isEmpty() ? QString() : QStringLiteral(",")) + CsvField(name);
    csv += QStringLiteral("\r\n");
    for (qsizetype row = 0; row < rows.RowCount(); ++row) {
        QStringList fields;
        for (const QString& name : names)
            fields += CsvField(rows.TextAt(row, rows.Column(name)));
        csv += fields.join(u',') + QStringLiteral("\r\n");
    }
    return csv.toUtf8();
}

constexpr int TextWidth = 100;

QString HeadLine(DataReport& report, QStringView label, QStringView value) {
    ReportSection& head = report.Sections(u"Section2");
    return head.Controls(label).Caption().leftJustified(18) + head.Controls(value).Caption() +
           u'\n';
}

/// The lines of the page header and, below, the report's rows: the planned time and its range, or
/// the touch's time, then the place and the status.
QByteArray Text(DataReport& report) {
    const RowSource& rows = *report.DataSource();
    ReportSection& head = report.Sections(u"Section2");
    QString text = report.Caption() + u'\n' + QString(report.Caption().size(), u'=') + u'\n';
    for (const QString& line :
         head.Controls(u"lblCompanyInfo").Caption().split(QStringLiteral("\r\n")))
        if (!line.isEmpty())
            text += line + u'\n';
    text += HeadLine(report, u"lblTitleTourName", u"lblTourName") +
            HeadLine(report, u"lblDate", u"lblDateRange") +
            HeadLine(report, u"lblTitleReaderID", u"lblReaderID") +
            HeadLine(report, u"lblTitleTolerance", u"lblTolerance") +
            HeadLine(report, u"lblShowEvents", u"lblOptions") +
            HeadLine(report, u"Label17", u"lblPrintDate") + u'\n';
    const auto line = [](const QString& time, const QString& range, const QString& place,
                         const QString& status) {
        QString columns = time.leftJustified(10) + range.leftJustified(22) +
                          place.leftJustified(48) + QStringLiteral("  ") + status;
        while (columns.endsWith(u' '))
            columns.chop(1);
        return columns + u'\n';
    };
    text += line(head.Controls(u"lblTitleTourTime").Caption(), {},
                 head.Controls(u"lblSite").Caption(), head.Controls(u"lblActualTime").Caption());
    for (qsizetype row = 0; row < rows.RowCount(); ++row) {
        const auto field = [&](QStringView name) { return rows.TextAt(row, rows.Column(name)); };
        if (!field(u"tSeparator").isEmpty())
            text += field(u"tSeparator").left(TextWidth) + u'\n';
        else if (!field(u"txtEventTime").isEmpty())
            text +=
                line(QStringLiteral("    ") + field(u"txtEventTime"), {},
                     QStringLiteral("  ") + field(u"txtEventDetails"), field(u"txtEventStatus"));
        else
            text += line(field(u"tTourTime"), field(u"txtTourTimeRange"), field(u"tSiteName"),
                         field(u"tStatus"));
    }
    text += u'\n' + report.Sections(u"Section5").Controls(u"lblEndOfReport").Caption() + u'\n';
    return text.toUtf8();
}

} // namespace

void ConsoleReport::Show(DataReport& report) {
    switch (m_format) {
    case ReportFormat::Text:
        m_bytes = Text(report);
        break;
    case ReportFormat::Json:
        m_bytes = Json(report);
        break;
    case ReportFormat::Csv:
        m_bytes = Csv(report);
        break;
    case ReportFormat::Pdf: {
        QBuffer buffer(&m_bytes);
        buffer.open(QIODevice::WriteOnly);
        ExportPdf(report, buffer, report.Caption());
        break;
    }
    }
    m_hasReport = true;
}

QByteArray JsonMessage(const QString& message) {
    return "{\"message\": " + JsonText(message) + "}\n";
}
