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
    int contentWidth = 0; ///< of every section; stands in the middle of the paper
    int marginTop = 0;
    int marginBottom = 0;
    QStringList fontFamilies; ///< the first that the machine has is used
    std::vector<FontFace> fonts;
    std::vector<ReportSection> sections; ///< at most one of a kind

    /// Null if the layout has none of that kind, or one without height.
    const ReportSection* SectionOf(SectionKind kind) const;
    int HeightOf(SectionKind kind) const;
    /// What all sections of one page share.
    int PrintableHeight() const { return page.height() - marginTop - marginBottom; }
};

/// The layout of that name in the program's resources. Throws RunTimeError (FileNotFound) where
/// there is none and (InvalidPropertyValue) where it is faulty; the text names the file and, where
/// a control is at fault, its section and name.
///
/// The file is JSON; lengths in millimetres, font sizes in points:
///
///     { "page": { "size": "A4 or Letter", "width": 178, "marginTop": 12, "marginBottom": 12 },
///       "font": { "families": ["Liberation Sans", "Arial"], "size": 9 },
///       "sections": [
///         { "name": "Section2", "kind": "pageHeader", "height": 30, "controls": [
///           { "name": "lblPage", "type": "label", "left": 0, "top": 0, "width": 40, "height": 5,
///             "caption": "%p / %P", "align": "right" } ] } ] }
///
/// Page size: "A4", "Letter", or "A4 or Letter", which is Letter where the user's country uses it.
/// Width: of the sections, which stand in the middle of the paper. Section kinds: reportHeader,
/// pageHeader, detail, pageFooter, reportFooter; those left out have no height. Control types:
/// label ("caption"), textBox ("field", the column; in the detail only), line ("thickness"; one of
/// width and height is 0). For texts also "size", "bold", "italic", "colour" ("#rrggbb"), "align"
/// (left, centre, right), "verticalAlign" (top, centre, bottom). A text that is too large for its
/// box is made to fit it (FittedText.h); a text of underscores alone is drawn as one rule.
ReportLayout LoadReportLayout(const QString& name);

/// The same from bytes; `file` is what messages call them.
ReportLayout ReadReportLayout(const QByteArray& json, const QString& file);
