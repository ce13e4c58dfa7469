#include "RecordingViewer.h"

#include "DataReport.h"
#include "RowSource.h"

void RecordingViewer::Show(DataReport& report) {
    ++Shown;
    Caption = report.Caption();
    Rows.clear();
    const RowSource& source = *report.DataSource();
    const qsizetype columns = source.Columns().size();
    for (qsizetype row = 0; row < source.RowCount(); ++row) {
        QStringList values;
        for (int column = 0; column < columns; ++column)
            values += source.TextAt(row, column);
        Rows += values.join(u'|');
    }
    for (const ReportSection& section : report.Layout().sections)
        for (const ReportControl& control : section.AllControls())
            Labels[control.Name()] = control.Caption();
    if (OnShow)
        OnShow();
}
