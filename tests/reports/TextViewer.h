#pragma once

#include "RecordingViewer.h"
#include "ReportExport.h"

#include <QRegularExpression>

/// Also keeps the report as text, with one blank for each run of blanks.
class TextViewer : public RecordingViewer {
public:
    void Show(DataReport& report) override {
        RecordingViewer::Show(report);
        static const QRegularExpression blanks(" +");
        Text = QString::fromUtf8(ReportText(report)).replace(blanks, " ");
    }
    QString Text;
};
