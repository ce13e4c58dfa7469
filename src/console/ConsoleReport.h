#pragma once

#include "ReportViewer.h"

#include <QByteArray>

enum class ReportFormat { Text, Json, Csv, Pdf };

/// Takes a report instead of a preview window, in the form that was asked for.
class ConsoleReport : public ReportViewer {
public:
    explicit ConsoleReport(ReportFormat format) : m_format(format) {}

    /// Throws RunTimeError where a PDF cannot be made.
    void Show(DataReport& report) override;

    /// True once a report has been shown.
    bool HasReport() const { return m_hasReport; }
    const QByteArray& Bytes() const { return m_bytes; }

private:
    ReportFormat m_format;
    bool m_hasReport = false;
    QByteArray m_bytes;
};

/// `{"message": "..."}`, for a report that came to nothing.
QByteArray JsonMessage(const QString& message);
