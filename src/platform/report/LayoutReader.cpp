#include "CheckedJson.h"
#include "ReportLayout.h"
#include "RunTimeError.h"
#include "UserLocale.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

constexpr double LongestMillimetres = 2000;
constexpr double SmallestPoints = 1;
constexpr double LargestPoints = 200;
/// A thin line that every printer can draw.
constexpr double DefaultThickness = 0.2;

/// Millimetres in the file, hundredths of them here.
int Length(CheckedJson& node, const char* key, std::optional<double> otherwise = {}) {
    return static_cast<int>(std::lround(node.Number(key, 0, LongestMillimetres, otherwise) * 100));
}

/// The countries whose offices print on Letter paper. The printer is where the machine is.
bool CountryUsesLetter() {
    switch (MachineLocale().territory()) {
    case QLocale::Belize:
    case QLocale::Canada:
    case QLocale::Chile:
    case QLocale::Colombia:
    case QLocale::CostaRica:
    case QLocale::DominicanRepublic:
    case QLocale::ElSalvador:
    case QLocale::Guatemala:
    case QLocale::Mexico:
    case QLocale::Nicaragua:
    case QLocale::Panama:
    case QLocale::Philippines:
    case QLocale::PuertoRico:
    case QLocale::UnitedStates:
    case QLocale::Venezuela:
        return true;
    default:
        return false;
    }
}

QString PathOf(const QString& name) { return QStringLiteral(":/layouts/%1.json").arg(name); }

QByteArray ContentsOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                           QStringLiteral("The report layout \"%1\" cannot be read: %2")
                               .arg(path, file.errorString()));
    return file.readAll();
}

class LayoutReader {
public:
    explicit LayoutReader(const QString& file) { m_layout.file = file; }

    ReportLayout Read(const QByteArray& json) {
        CheckedJson top = Parse(json, m_layout.file);
        if (top.Has("family")) {
            const QString path = PathOf(top.Text("family"));
            if (!QFile::exists(path))
                top.Reject(QStringLiteral("there is no family \"%1\"").arg(path));
            CheckedJson family = Parse(ContentsOf(path), path);
            ReadShared(family);
            family.RejectLeftOvers();
        } else {
            ReadShared(top);
        }
        top.Require("sections");
        for (CheckedJson& section : top.List("sections", "section", "name"))
            ReadSection(section);
        ReadGroup(top);
        top.RejectLeftOvers();
        CheckFit(top);
        return std::move(m_layout);
    }

private:
    static CheckedJson Parse(const QByteArray& json, const QString& file) {
        return CheckedJson::Parse(json, QStringLiteral("Layout \"%1\"").arg(file));
    }

    /// What a family of layouts can share.
    void ReadShared(CheckedJson& node) {
        ReadPage(node.Child("page"));
        ReadFont(node.Child("font"));
        m_styles = node.Value("styles").toObject();
    }

    /// Adds what the style says that the section or control names.
    void ApplyStyle(CheckedJson& node) const {
        if (!node.Has("style"))
            return;
        const QString name = node.Text("style");
        if (!m_styles.value(name).isObject())
            node.Reject(QStringLiteral("there is no style \"%1\"").arg(name));
        node.AddDefaults(m_styles.value(name).toObject(), QStringLiteral("style \"%1\"").arg(name));
    }

    void ReadPage(CheckedJson node) {
        enum class Paper { ByCountry, A4, Letter };
        const Paper paper = node.Choice<Paper>(
            "size",
            {{"A4 or Letter", Paper::ByCountry}, {"A4", Paper::A4}, {"Letter", Paper::Letter}});
        const bool letter =
            paper == Paper::Letter || (paper == Paper::ByCountry && CountryUsesLetter());
        m_layout.paper = letter ? QPageSize::Letter : QPageSize::A4;
        m_layout.page = (QPageSize(m_layout.paper).size(QPageSize::Millimeter) * 100).toSize();
        m_layout.contentWidth = Length(node, "width");
        m_layout.marginTop = Length(node, "marginTop");
        m_layout.marginBottom = Length(node, "marginBottom");
        node.RejectLeftOvers();
        if (m_layout.contentWidth > m_layout.page.width())
            node.Reject(QStringLiteral("the sections are wider than the paper"));
    }

    void ReadFont(CheckedJson node) {
        m_layout.fontFamilies = node.Texts("families");
        if (m_layout.fontFamilies.isEmpty())
            node.Reject(QStringLiteral("\"families\" is empty"));
        m_defaultPoints = node.Number("size", SmallestPoints, LargestPoints);
        m_defaultColour = Colour(node, Qt::black);
        node.RejectLeftOvers();
    }

    void ReadSection(CheckedJson& node) {
        ApplyStyle(node);
        const auto kind =
            node.Choice<SectionKind>("kind", {{"reportHeader", SectionKind::ReportHeader},
                                              {"pageHeader", SectionKind::PageHeader},
                                              {"groupHeader", SectionKind::GroupHeader},
                                              {"detail", SectionKind::Detail},
                                              {"groupFooter", SectionKind::GroupFooter},
                                              {"pageFooter", SectionKind::PageFooter},
                                              {"reportFooter", SectionKind::ReportFooter}});
        ReportSection section(NameOf(node), kind, Length(node, "height"));
        for (const ReportSection& other : m_layout.sections) {
            if (other.Name().compare(section.Name(), Qt::CaseInsensitive) == 0)
                node.Reject(QStringLiteral("there are two of that name"));
            if (other.Kind() == kind)
                node.Reject(QStringLiteral("there is another section of that kind"));
        }
        node.Require("controls");
        for (CheckedJson& control : node.List("controls", "control", "name"))
            ReadControl(control, section);
        node.RejectLeftOvers();
        m_layout.sections.push_back(std::move(section));
    }

    /// A layout that has a group header or footer names the column that groups its rows.
    void ReadGroup(CheckedJson& top) {
        if (!m_layout.SectionOf(SectionKind::GroupHeader) &&
            !m_layout.SectionOf(SectionKind::GroupFooter))
            return;
        CheckedJson node = top.Child("group");
        m_layout.groupColumn = node.Text("by");
        m_layout.groupRows = node.Text("rows");
        node.RejectLeftOvers();
    }

    void ReadControl(CheckedJson& node, ReportSection& section) {
        ApplyStyle(node);
        const QString name = NameOf(node);
        const auto kind = node.Choice<ControlKind>("type", {{"label", ControlKind::Label},
                                                            {"textBox", ControlKind::TextBox},
                                                            {"line", ControlKind::Line}});
        const auto has = [&](const ReportSection& other) { return other.Find(name) != nullptr; };
        if (has(section) || std::any_of(m_layout.sections.begin(), m_layout.sections.end(), has))
            node.Reject(QStringLiteral("there are two of that name"));

        ControlStyle style;
        style.box = QRect(Length(node, "left"), 0, Length(node, "width"), Length(node, "height"));
        if (node.Has("bottom"))
            style.box.moveTop(section.Height() - Length(node, "bottom") - style.box.height());
        else
            style.box.moveTop(Length(node, "top"));
        if (style.box.left() + style.box.width() > m_layout.contentWidth || style.box.top() < 0 ||
            style.box.top() + style.box.height() > section.Height())
            node.Reject(QStringLiteral("it reaches beyond its section"));
        style.colour = Colour(node, m_defaultColour);

        QString caption;
        QString dataField;
        if (kind == ControlKind::Line) {
            style.thickness = Length(node, "thickness", DefaultThickness);
            if (style.box.width() != 0 && style.box.height() != 0)
                node.Reject(QStringLiteral("the width or the height of a line must be 0"));
        } else {
            ReadTextStyle(node, style);
            if (kind == ControlKind::Label) {
                caption = node.Text("caption", QString());
            } else {
                dataField = node.Text("field");
                if (!HasRow(section.Kind()))
                    node.Reject(QStringLiteral("this section has no row for a text box"));
            }
        }
        node.RejectLeftOvers();
        section.Add(ReportControl(name, kind, style, caption, dataField));
    }

    void ReadTextStyle(CheckedJson& node, ControlStyle& style) {
        style.font = FontOf({node.Number("size", SmallestPoints, LargestPoints, m_defaultPoints),
                             node.Flag("bold"), node.Flag("italic")});
        style.alignment = node.Choice<Qt::Alignment>(
            "align",
            {{"left", Qt::AlignLeft}, {"centre", Qt::AlignHCenter}, {"right", Qt::AlignRight}},
            Qt::AlignLeft);
        style.alignment |= node.Choice<Qt::Alignment>(
            "verticalAlign",
            {{"top", Qt::AlignTop}, {"centre", Qt::AlignVCenter}, {"bottom", Qt::AlignBottom}},
            Qt::AlignTop);
    }

    static QString NameOf(CheckedJson& node) {
        QString name = node.Text("name");
        if (name.isEmpty())
            node.Reject(QStringLiteral("\"name\" is empty"));
        return name;
    }

    static QColor Colour(CheckedJson& node, const QColor& otherwise) {
        const QString text = node.Text("colour", otherwise.name());
        const QColor colour(text);
        if (!colour.isValid())
            node.Reject(QStringLiteral("\"%1\" is not a colour").arg(text));
        return colour;
    }

    int FontOf(const FontFace& face) {
        for (std::size_t i = 0; i < m_layout.fonts.size(); ++i)
            if (m_layout.fonts[i] == face)
                return static_cast<int>(i);
        m_layout.fonts.push_back(face);
        return static_cast<int>(m_layout.fonts.size()) - 1;
    }

    /// Every page must have room for its header, its footer and either one row, with the header and
    /// footer of its group, or the report footer. Otherwise the pages would never end.
    void CheckFit(const CheckedJson& top) const {
        const int body = m_layout.PrintableHeight() - m_layout.HeightOf(SectionKind::PageHeader) -
                         m_layout.HeightOf(SectionKind::PageFooter);
        const int first = body - m_layout.HeightOf(SectionKind::ReportHeader);
        const int row = m_layout.HeightOf(SectionKind::GroupHeader) +
                        m_layout.HeightOf(SectionKind::Detail) +
                        m_layout.HeightOf(SectionKind::GroupFooter);
        if (first < row || first < 0 || body < m_layout.HeightOf(SectionKind::ReportFooter))
            top.Reject(QStringLiteral("the sections are higher than the paper"));
    }

    ReportLayout m_layout;
    QJsonObject m_styles;
    double m_defaultPoints = 0;
    QColor m_defaultColour;
};

} // namespace

const ReportSection* ReportLayout::SectionOf(SectionKind kind) const {
    for (const ReportSection& section : sections)
        if (section.Kind() == kind)
            return section.Height() > 0 ? &section : nullptr;
    return nullptr;
}

int ReportLayout::HeightOf(SectionKind kind) const {
    const ReportSection* section = SectionOf(kind);
    return section ? section->Height() : 0;
}

ReportLayout ReadReportLayout(const QByteArray& json, const QString& file) {
    return LayoutReader(file).Read(json);
}

ReportLayout LoadReportLayout(const QString& name) {
    const QString path = PathOf(name);
    return ReadReportLayout(ContentsOf(path), path);
}
