#pragma once

#include "ReportViewer.h"

#include <QHash>
#include <QStringList>

#include <functional>

/// Records a report instead of showing a preview window.
class RecordingViewer : public ReportViewer {
public:
    void Show(DataReport& report) override;

    int Shown = 0;
    QString Caption;
    /// A line for each row: all columns of the source, with "|" between them.
    QStringList Rows;
    /// The captions of all controls, by name.
    QHash<QString, QString> Labels;
    /// Called while the report is shown.
    std::function<void()> OnShow;
};
