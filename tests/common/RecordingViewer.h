#pragma once

#include "ReportViewer.h"

#include <QHash>
#include <QStringList>

#include <functional>

/// Looks at a report in place of a preview window.
class RecordingViewer : public ReportViewer {
public:
    void Show(DataReport& report) override;

    int Shown = 0;
    QString Caption;
    /// The bound columns and all others of the source, a row a line, parted by "|".
    QStringList Rows;
    /// Labels of the page header and the report footer, by name.
    QHash<QString, QString> Labels;
    int Pages = 0;
    /// Called while the report is shown.
    std::function<void()> OnShow;
};
