#pragma once

#include "ReportSection.h"

#include <QPageSize>
#include <QStringList>

#include <vector>

/// A report layout as its file describes it, checked. All lengths are hundredths of a millimetre.
struct ReportLayout {
    QString file; ///< for messages
    QPageSize::PageSizeId paper = QPageSize::A4;
    QSize page;           ///< of the paper
    int contentWidth = 0; ///< of every section; centred on the paper
    int marginTop = 0;
    int marginBottom = 0;
    QStringList fontFamilies; ///< the first that the machine has is used
    std::vector<FontFace> fonts;
    std::vector<ReportSection> sections; ///< at most one of a kind
    /// The column whose value the rows of a group share, and what the rows of one group are called
    /// in an export. Both are empty if the layout does not group.
    QString groupColumn;
    QString groupRows;

    /// Null if the layout has none of that kind, or one without height.
    const ReportSection* SectionOf(SectionKind kind) const;
    int HeightOf(SectionKind kind) const;
    /// What all sections of one page share.
    int PrintableHeight() const { return page.height() - marginTop - marginBottom; }
};

/// The layout of that name in the program's resources. Throws RunTimeError: FileNotFound if there
/// is none, InvalidPropertyValue if it is faulty. The text names the file and, if a control is at
/// fault, its section and name.
///
/// The file is JSON; lengths in millimetres, font sizes in points:
///
///     { "page": { "size": "A4 or Letter", "width": 178, "marginTop": 12, "marginBottom": 12 },
///       "font": { "families": ["Liberation Sans", "Arial"], "size": 9 },
///       "styles": { "value": { "type": "label", "width": 40, "height": 5, "bold": true } },
///       "sections": [
///         { "name": "Section2", "kind": "pageHeader", "height": 30, "controls": [
///           { "name": "lblPage", "style": "value", "left": 0, "top": 0, "caption": "%p / %P" }
///           ] } ] }
///
/// Layouts that must look the same share a family: with "family": "family", page, font and styles
/// are those of family.json. Such a layout has none of its own.
///
/// A section or a control may name a style. It has the properties of the style, except those that
/// it gives itself. A style has any properties that a section or a control can have, but no style.
///
/// Page size: "A4", "Letter", or "A4 or Letter", which is Letter where the user's country uses it.
/// Width: of the sections, which are centred on the paper. Section kinds: reportHeader, pageHeader,
/// groupHeader, detail, groupFooter, pageFooter, reportFooter; those left out have no height.
///
/// A layout with a group header or footer also has "group": { "by": the column that groups,
/// "rows": what an export calls the rows of one group }. The rows of the source are ordered by that
/// column.
///
/// A control's place is given by its "left", and by its "top" or by "bottom": the distance of its
/// lower edge from the lower edge of the section.
///
/// Control types: label ("caption"), textBox ("field", the column; in the detail and in the header
/// and footer of a group), line ("thickness"; its width or its height is 0). Texts also have
/// "size", "bold", "italic", "colour" ("#rrggbb"), "align" (left, centre, right), "verticalAlign"
/// (top, centre, bottom). A text that is too large for its box is made to fit (FittedText.h). A
/// text of nothing but ten or more underscores, or dashes, is drawn as one rule. The font's size
/// and colour are the default.
ReportLayout LoadReportLayout(const QString& name);

/// The same from bytes; `file` is what messages call them.
ReportLayout ReadReportLayout(const QByteArray& json, const QString& file);
