#pragma once

#include "ReportViewer.h"

#include <QByteArray>

enum class ReportFormat { Text, Json, Csv, Pdf };

/// Takes the place of the preview window: keeps a report in one format.
class ConsoleReport : public ReportViewer {
public:
    explicit ConsoleReport(ReportFormat format) : m_format(format) {}

    /// Throws RunTimeError if a PDF cannot be made.
    void Show(DataReport& report) override;

    /// True once a report has been shown.
    bool HasReport() const { return m_hasReport; }
    const QByteArray& Bytes() const { return m_bytes; }

private:
    ReportFormat m_format;
    bool m_hasReport = false;
    QByteArray m_bytes;
};

/// `{"message": "..."}`, if a message was shown instead of a report.
QByteArray JsonMessage(const QString& message);
