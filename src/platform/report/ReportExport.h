#pragma once

#include "DataReport.h"

#include <QByteArray>

/// A report that has its rows and texts, in forms other than pages. All of them are UTF-8. Throws
/// RunTimeError (ObjectClosed) if the report has no source of rows.

/// Plain text. It follows the layout:
///
/// - the caption, underlined;
/// - the values of the page header, one on each line. A fixed label that ends less than a
/// millimetre
///   to the left of a value is written before it. The page number and fixed labels without a value
///   are left out.
/// - the column headings: the last line of the page header, if it is fixed labels only;
/// - the rows with the headers and footers of their groups. Each text is placed as on paper, or
///   further to the right if there is no room.
/// - the report footer.
///
/// In a language that is written from right to left, the first column still comes first: the
/// program that shows the text puts it on the right. So that it does, each line begins with the
/// mark U+200F, and each text is isolated from its neighbours (U+2068, U+2069). The marks take no
/// room.
QByteArray ReportText(const DataReport& report);

/// Comma-separated: a line of the columns' names, then the rows. Every field is quoted.
QByteArray ReportCsv(const DataReport& report);

/// `{"title": "...", "rows": [...]}`. A row is an object of all columns in their order; a value is
/// a text or null. If the layout groups its rows, they come in blocks, such as
/// `{"dtDLDateTime": "...", "ReaderEvents": [...]}`: the value that groups, and the group's rows.
QByteArray ReportJson(const DataReport& report);

/// In CSV and JSON, a number in a column whose name begins with "dt" is a date:
/// `YYYY-MM-DDTHH:MM:SS`.

/// A text as JSON has it, with its quotes.
QByteArray JsonText(const QString& text);
