#pragma once

#include "DataReport.h"
#include "RowSource.h"
#include "RunTimeError.h"

#include <QProcess>

#include <functional>
#include <memory>

/// Rows of one column, `tName`. A text is made when it is asked for.
class CountedRows : public RowSource {
public:
    explicit CountedRows(qsizetype count) : m_count(count) {}

    qsizetype RowCount() const override { return m_count; }
    const QStringList& Columns() const override { return Names; }
    Value ValueAt(qsizetype row, int) const override {
        ++Reads;
        return Text(row);
    }

    QStringList Names{"tName"};
    std::function<QString(qsizetype)> Text = [](qsizetype row) {
        return QStringLiteral("Row %1").arg(row + 1);
    };
    mutable int Reads = 0;

private:
    qsizetype m_count;
};

/// A page of 100 mm without margins: header 10, rows of 10, footer as given; so a page
/// has room for nine rows, and the first, which has a report header of 10, for eight. The sections
/// begin 55 mm from the left edge of the paper; the text box is 60 mm wide.
inline QByteArray SmallLayout(int footerHeight = 10) {
    return QStringLiteral(R"({
        "page": { "size": "A4", "width": 100, "marginTop": 98.5, "marginBottom": 98.5 },
        "font": { "families": ["DejaVu Sans"], "size": 9 },
        "styles": { "name": { "type": "textBox", "field": "tName", "height": 5, "bold": true } },
        "sections": [
          { "name": "Head", "kind": "reportHeader", "height": 10, "controls": [
            { "name": "lblHead", "type": "label", "left": 0, "top": 0, "width": 60, "height": 5,
              "caption": "Beginning" } ] },
          { "name": "Top", "kind": "pageHeader", "height": 10, "controls": [
            { "name": "lblPage", "type": "label", "left": 0, "top": 0, "width": 60, "height": 5,
              "caption": "%p / %P" } ] },
          { "name": "Row", "kind": "detail", "height": 10, "controls": [
            { "name": "txtName", "style": "name", "left": 0, "bottom": 5, "width": 60,
              "bold": false, "align": "left" } ] },
          { "name": "End", "kind": "reportFooter", "height": %1, "controls": [] } ] })")
        .arg(footerHeight)
        .toUtf8();
}

/// Two downloads with three touches.
class Touches : public RowSource {
public:
    const QList<QList<Value>> Rows{
        {46110.5, QString("a")}, {46110.5, QString("say \"b\"")}, {46111.0, Value()}};
    const QStringList Names{"dtLoad", "tName"};
    qsizetype RowCount() const override { return Rows.size(); }
    const QStringList& Columns() const override { return Names; }
    Value ValueAt(qsizetype row, int column) const override { return Rows[row][column]; }
};

/// The small layout for Touches: a group for each download, with a header and a footer of 10.
inline QByteArray GroupedLayout() {
    return SmallLayout()
        .replace("\"font\"", R"("group": { "by": "dtLoad", "rows": "T" }, "font")")
        .replace("{ \"name\": \"End\"", R"(
          { "name": "GroupTop", "kind": "groupHeader", "height": 10, "controls": [
            { "name": "lblLoad", "type": "label", "left": 0, "top": 0, "width": 20, "height": 5 },
            { "name": "txtLoad", "type": "textBox", "field": "dtLoad", "left": 21, "top": 1,
              "width": 20, "height": 5 } ] },
          { "name": "GroupEnd", "kind": "groupFooter", "height": 10, "controls": [
            { "name": "txtLast", "type": "textBox", "field": "tName", "left": 10, "top": 0,
              "width": 20, "height": 5 } ] },
          { "name": "End")");
}

inline std::unique_ptr<DataReport> SmallReport(const QByteArray& layout = SmallLayout()) {
    return std::make_unique<DataReport>(ReadReportLayout(layout, "test.json"));
}

/// The text of a PDF, page by page and line by line, with blanks between; empty without the tool.
inline QString TextOfPdf(const QString& path) {
    QProcess tool;
    tool.start("pdftotext", {"-raw", path, "-"});
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput()).simplified();
}
inline bool HasPdfTool() {
    QProcess tool;
    tool.start("pdftotext", {"-v"});
    return tool.waitForFinished() && tool.exitCode() == 0;
}
