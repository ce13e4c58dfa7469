#pragma once

#include <QColor>
#include <QHash>
#include <QRect>
#include <QString>

#include <memory>
#include <vector>

class Value;

/// The parts of a report layout. All lengths are hundredths of a millimetre.

/// In their order on paper. A layout that groups its rows has a group
/// header before the rows of each group, a group footer after them, or both.
enum class SectionKind {
    ReportHeader,
    PageHeader,
    GroupHeader,
    Detail,
    GroupFooter,
    PageFooter,
    ReportFooter
};

constexpr std::size_t SectionKinds = 7;

/// Whether text boxes in sections of that kind have a row to show. In a group header it is the
/// first row of the group, in a group footer the last one.
constexpr bool HasRow(SectionKind kind) {
    return kind == SectionKind::GroupHeader || kind == SectionKind::Detail ||
           kind == SectionKind::GroupFooter;
}

/// A text of ten or more underscores, or dashes, and nothing else. It is drawn as one line.
bool IsRule(QStringView text);

enum class ControlKind { Label, TextBox, Line };

/// Whether "%p", "%P", "%d" and "%t" in a caption mean the page, the number of pages, the date and
/// the time of printing, or are printed as they are.
enum class CaptionKind { Pattern, Literal };

struct FontFace {
    double points = 9;
    bool bold = false;
    bool italic = false;
    bool operator==(const FontFace&) const = default;
};

/// How a control looks. Fixed by the layout.
struct ControlStyle {
    QRect box;                 ///< within its section
    int font = 0;              ///< position in ReportLayout::fonts
    QColor colour = Qt::black; ///< of text or line
    Qt::Alignment alignment;   ///< as box, for a page that is not mirrored
    int thickness = 0;         ///< of a line, which is centred on its box's top or left edge
};

/// A label, a text box bound to a column, or a line.
class ReportControl {
public:
    ReportControl(QString name, ControlKind kind, const ControlStyle& style, QString caption,
                  QString dataField);

    const QString& Name() const { return m_name; }
    ControlKind Kind() const { return m_kind; }
    const ControlStyle& Style() const { return m_style; }

    /// What a label shows. CR LF or LF begins a new line. A value that an operator typed is set as
    /// a literal, so that a "%d" in it is printed as it is.
    const QString& Caption() const { return m_caption; }
    CaptionKind KindOfCaption() const { return m_captionKind; }
    void SetCaption(const QString& caption, CaptionKind kind = CaptionKind::Pattern);

    /// The column that a text box shows; empty for labels and lines.
    const QString& DataField() const { return m_dataField; }
    /// The format in which a text box shows dates (Format.h); empty for none. A date is a number of
    /// the store, or a text that DefaultDateTimeText wrote. Every other value is shown as it is.
    void SetDataFormat(const QString& format) { m_dataFormat = format; }
    /// What a text box shows of a value of its column.
    QString TextOf(const Value& value) const;
    /// Values that are printed with a sign and a blank before them. TextOf, and so every export,
    /// has the value alone.
    void SetSigns(const QHash<QString, QString>& signs) { m_signs = signs; }
    QString PrintedTextOf(const Value& value) const;

private:
    QString m_name;
    ControlKind m_kind;
    ControlStyle m_style;
    QString m_caption;
    CaptionKind m_captionKind = CaptionKind::Pattern;
    QString m_dataField;
    QString m_dataFormat;
    QHash<QString, QString> m_signs;
};

/// A band across the page with its controls.
class ReportSection {
public:
    ReportSection(QString name, SectionKind kind, int height);

    const QString& Name() const { return m_name; }
    SectionKind Kind() const { return m_kind; }
    int Height() const { return m_height; }

    /// The control of that name; upper and lower case are the same. It belongs to the section.
    /// Throws RunTimeError (NoSuchItem).
    ReportControl& Controls(QStringView name);
    /// All of them, in the order in which they are painted.
    const std::vector<ReportControl>& AllControls() const { return m_controls; }

    /// Null if there is none of that name.
    const ReportControl* Find(QStringView name) const;
    void Add(ReportControl control) { m_controls.push_back(std::move(control)); }

private:
    QString m_name;
    SectionKind m_kind;
    int m_height;
    std::vector<ReportControl> m_controls;
};
