#pragma once

#include <QColor>
#include <QRect>
#include <QString>

#include <memory>
#include <vector>

/// The parts that a report layout is made of. All lengths are hundredths of a millimetre.

/// In the order in which they follow each other on paper. A report that groups its rows will have a
/// group header and a group footer around the detail; a section kind is then added here, and
/// Pagination learns to place it.
enum class SectionKind { ReportHeader, PageHeader, Detail, PageFooter, ReportFooter };

enum class ControlKind { Label, TextBox, Line };

/// Whether "%p", "%P", "%d" and "%t" in a caption stand for the page, the number of pages, the date
/// and the time of printing, or for themselves.
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
    Qt::Alignment alignment;   ///< absolute: left is left in every language
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

    /// What a label shows. Lines of text are parted by CR LF or LF. A value that an operator typed
    /// is handed in as a literal, so that a "%d" in it stays what it is.
    const QString& Caption() const { return m_caption; }
    CaptionKind KindOfCaption() const { return m_captionKind; }
    void SetCaption(const QString& caption, CaptionKind kind = CaptionKind::Pattern);

    /// The column that a text box shows; empty for labels and lines.
    const QString& DataField() const { return m_dataField; }

private:
    QString m_name;
    ControlKind m_kind;
    ControlStyle m_style;
    QString m_caption;
    CaptionKind m_captionKind = CaptionKind::Pattern;
    QString m_dataField;
};

/// A band across the page with its controls.
class ReportSection {
public:
    ReportSection(QString name, SectionKind kind, int height);

    const QString& Name() const { return m_name; }
    SectionKind Kind() const { return m_kind; }
    int Height() const { return m_height; }

    /// The control of that name, whose case does not count. It belongs to the section. Throws
    /// RunTimeError (NoSuchItem).
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
