#include "ReportLayout.h"
#include "RunTimeError.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <cmath>
#include <utility>

namespace {

constexpr double LongestMillimetres = 2000;
constexpr double SmallestPoints = 1;
constexpr double LargestPoints = 200;
/// The thinnest line that every printer draws.
constexpr double DefaultThickness = 0.2;

[[noreturn]] void Fail(const QString& text) {
    throw RunTimeError(RunTimeErrorNumber::InvalidPropertyValue, text);
}

/// One object of the file, with its place in the file for messages. A property that nobody asks for
/// is a misspelling and rejected.
class Node {
public:
    Node(QJsonObject object, QString place)
        : m_object(std::move(object)), m_place(std::move(place)) {}

    const QString& Place() const { return m_place; }
    [[noreturn]] void Reject(const QString& what) const {
        Fail(m_place + QStringLiteral(": ") + what);
    }

    QString Text(const char* key) { return Taken(key, QJsonValue::String, "a text").toString(); }
    QString Text(const char* key, const QString& otherwise) {
        return Has(key) ? Text(key) : otherwise;
    }
    bool Flag(const char* key) {
        return Has(key) && Taken(key, QJsonValue::Bool, "true or false").toBool();
    }
    QJsonArray Array(const char* key) { return Taken(key, QJsonValue::Array, "a list").toArray(); }
    Node Child(const char* key) {
        return Node(Taken(key, QJsonValue::Object, "an object").toObject(),
                    m_place + QStringLiteral(", \"%1\"").arg(QLatin1String(key)));
    }
    double Number(const char* key, double least, double most) {
        const double value = Taken(key, QJsonValue::Double, "a number").toDouble();
        if (!(value >= least && value <= most))
            Reject(QStringLiteral("\"%1\" must lie between %2 and %3.")
                       .arg(QLatin1String(key))
                       .arg(least)
                       .arg(most));
        return value;
    }
    double Number(const char* key, double least, double most, double otherwise) {
        return Has(key) ? Number(key, least, most) : otherwise;
    }
    /// Millimetres in the file, hundredths of them here.
    int Length(const char* key) { return Hundredths(Number(key, 0, LongestMillimetres)); }
    int Length(const char* key, double otherwise) {
        return Hundredths(Number(key, 0, LongestMillimetres, otherwise));
    }
    /// One of a few words. The first one is the default.
    template <typename T>
    T Choice(const char* key, std::initializer_list<std::pair<const char*, T>> choices) {
        if (!Has(key))
            return choices.begin()->second;
        const QString word = Text(key);
        for (const auto& [name, value] : choices)
            if (word == QLatin1String(name))
                return value;
        Reject(QStringLiteral("\"%1\" cannot be \"%2\".").arg(QLatin1String(key), word));
    }
    void Require(const char* key) const {
        if (!Has(key))
            Reject(QStringLiteral("\"%1\" is missing.").arg(QLatin1String(key)));
    }
    void RejectLeftOvers() const {
        for (const QString& key : m_object.keys())
            if (!m_taken.contains(key))
                Reject(QStringLiteral("\"%1\" is not known here.").arg(key));
    }

private:
    bool Has(const char* key) const { return m_object.contains(QLatin1String(key)); }
    QJsonValue Taken(const char* key, QJsonValue::Type type, const char* what) {
        Require(key);
        m_taken += QLatin1String(key);
        const QJsonValue value = m_object.value(QLatin1String(key));
        if (value.type() != type)
            Reject(
                QStringLiteral("\"%1\" must be %2.").arg(QLatin1String(key), QLatin1String(what)));
        return value;
    }
    static int Hundredths(double millimetres) {
        return static_cast<int>(std::lround(millimetres * 100));
    }

    QJsonObject m_object;
    QString m_place;
    QStringList m_taken;
};

/// The countries whose offices print on Letter paper.
bool CountryUsesLetter() {
    switch (QLocale().territory()) {
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

class LayoutReader {
public:
    explicit LayoutReader(const QString& file) { m_layout.file = file; }

    ReportLayout Read(const QJsonObject& root) {
        Node top(root, QStringLiteral("Layout \"%1\"").arg(m_layout.file));
        ReadPage(top.Child("page"));
        ReadFont(top.Child("font"));
        for (const QJsonValue& value : top.Array("sections"))
            ReadSection(NamedNode(value, top, QStringLiteral("section")));
        ReadGroup(top);
        top.RejectLeftOvers();
        CheckFit(top);
        return std::move(m_layout);
    }

private:
    void ReadPage(Node node) {
        enum class Paper { ByCountry, A4, Letter };
        node.Require("size");
        const Paper paper = node.Choice<Paper>(
            "size",
            {{"A4 or Letter", Paper::ByCountry}, {"A4", Paper::A4}, {"Letter", Paper::Letter}});
        const bool letter =
            paper == Paper::Letter || (paper == Paper::ByCountry && CountryUsesLetter());
        m_layout.paper = letter ? QPageSize::Letter : QPageSize::A4;
        m_layout.page = (QPageSize(m_layout.paper).size(QPageSize::Millimeter) * 100).toSize();
        m_layout.contentWidth = node.Length("width");
        m_layout.marginTop = node.Length("marginTop");
        m_layout.marginBottom = node.Length("marginBottom");
        node.RejectLeftOvers();
        if (m_layout.contentWidth > m_layout.page.width())
            node.Reject(QStringLiteral("the sections are wider than the paper."));
    }

    void ReadFont(Node node) {
        for (const QJsonValue& family : node.Array("families"))
            m_layout.fontFamilies += family.toString();
        if (m_layout.fontFamilies.isEmpty())
            node.Reject(QStringLiteral("\"families\" is empty."));
        m_defaultPoints = node.Number("size", SmallestPoints, LargestPoints);
        node.RejectLeftOvers();
    }

    void ReadSection(Node node) {
        node.Require("kind");
        const auto kind =
            node.Choice<SectionKind>("kind", {{"reportHeader", SectionKind::ReportHeader},
                                              {"pageHeader", SectionKind::PageHeader},
                                              {"groupHeader", SectionKind::GroupHeader},
                                              {"detail", SectionKind::Detail},
                                              {"groupFooter", SectionKind::GroupFooter},
                                              {"pageFooter", SectionKind::PageFooter},
                                              {"reportFooter", SectionKind::ReportFooter}});
        ReportSection section(node.Text("name"), kind, node.Length("height"));
        for (const ReportSection& other : m_layout.sections) {
            if (other.Name().compare(section.Name(), Qt::CaseInsensitive) == 0)
                node.Reject(QStringLiteral("there are two of that name."));
            if (other.Kind() == kind)
                node.Reject(QStringLiteral("there is another section of that kind."));
        }
        for (const QJsonValue& value : node.Array("controls"))
            ReadControl(NamedNode(value, node, QStringLiteral("control")), section);
        node.RejectLeftOvers();
        m_layout.sections.push_back(std::move(section));
    }

    /// A layout that has a group header or footer names the column that groups its rows.
    void ReadGroup(Node& top) {
        if (!m_layout.SectionOf(SectionKind::GroupHeader) &&
            !m_layout.SectionOf(SectionKind::GroupFooter))
            return;
        Node node = top.Child("group");
        m_layout.groupColumn = node.Text("by");
        m_layout.groupRows = node.Text("rows");
        node.RejectLeftOvers();
    }

    void ReadControl(Node node, ReportSection& section) {
        const QString name = node.Text("name");
        node.Require("type");
        const auto kind = node.Choice<ControlKind>("type", {{"label", ControlKind::Label},
                                                            {"textBox", ControlKind::TextBox},
                                                            {"line", ControlKind::Line}});
        if (section.Find(name))
            node.Reject(QStringLiteral("there are two of that name."));

        ControlStyle style;
        style.box = QRect(node.Length("left"), node.Length("top"), node.Length("width"),
                          node.Length("height"));
        if (style.box.left() + style.box.width() > m_layout.contentWidth ||
            style.box.top() + style.box.height() > section.Height())
            node.Reject(QStringLiteral("it reaches beyond its section."));
        style.colour = Colour(node);

        QString caption;
        QString dataField;
        if (kind == ControlKind::Line) {
            style.thickness = node.Length("thickness", DefaultThickness);
            if (style.box.width() != 0 && style.box.height() != 0)
                node.Reject(QStringLiteral("a line has no width or no height."));
        } else {
            ReadTextStyle(node, style);
            if (kind == ControlKind::Label) {
                caption = node.Text("caption", QString());
            } else {
                dataField = node.Text("field");
                if (!HasRow(section.Kind()))
                    node.Reject(QStringLiteral("this section has no row for a text box."));
            }
        }
        node.RejectLeftOvers();
        section.Add(ReportControl(name, kind, style, caption, dataField));
    }

    void ReadTextStyle(Node& node, ControlStyle& style) {
        style.font = FontOf({node.Number("size", SmallestPoints, LargestPoints, m_defaultPoints),
                             node.Flag("bold"), node.Flag("italic")});
        style.alignment = node.Choice<Qt::Alignment>(
            "align",
            {{"left", Qt::AlignLeft}, {"centre", Qt::AlignHCenter}, {"right", Qt::AlignRight}});
        style.alignment |= node.Choice<Qt::Alignment>(
            "verticalAlign",
            {{"top", Qt::AlignTop}, {"centre", Qt::AlignVCenter}, {"bottom", Qt::AlignBottom}});
    }

    static QColor Colour(Node& node) {
        const QString text = node.Text("colour", QStringLiteral("#000000"));
        const QColor colour(text);
        if (!colour.isValid())
            node.Reject(QStringLiteral("\"%1\" is no colour.").arg(text));
        return colour;
    }

    int FontOf(const FontFace& face) {
        for (std::size_t i = 0; i < m_layout.fonts.size(); ++i)
            if (m_layout.fonts[i] == face)
                return static_cast<int>(i);
        m_layout.fonts.push_back(face);
        return static_cast<int>(m_layout.fonts.size()) - 1;
    }

    static Node NamedNode(const QJsonValue& value, const Node& parent, const QString& word) {
        const QJsonObject object = value.toObject();
        const QString name = object.value(QLatin1String("name")).toString();
        if (name.isEmpty())
            parent.Reject(QStringLiteral("a %1 has no name.").arg(word));
        return Node(object, parent.Place() + QStringLiteral(", %1 \"%2\"").arg(word, name));
    }

    /// Every page must have room for its header, its footer and either one row, with its group's
    /// header and footer, or the report's end. Otherwise there would be no end of pages.
    void CheckFit(const Node& top) const {
        const int body = m_layout.PrintableHeight() - m_layout.HeightOf(SectionKind::PageHeader) -
                         m_layout.HeightOf(SectionKind::PageFooter);
        const int first = body - m_layout.HeightOf(SectionKind::ReportHeader);
        const int row = m_layout.HeightOf(SectionKind::GroupHeader) +
                        m_layout.HeightOf(SectionKind::Detail) +
                        m_layout.HeightOf(SectionKind::GroupFooter);
        if (first < row || first < 0 || body < m_layout.HeightOf(SectionKind::ReportFooter))
            top.Reject(QStringLiteral("the sections are higher than the paper."));
    }

    ReportLayout m_layout;
    double m_defaultPoints = 0;
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
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        Fail(QStringLiteral("Layout \"%1\": %2 at byte %3.")
                 .arg(file, error.errorString())
                 .arg(error.offset));
    return LayoutReader(file).Read(document.object());
}

ReportLayout LoadReportLayout(const QString& name) {
    const QString path = QStringLiteral(":/layouts/%1.json").arg(name);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                           QStringLiteral("The report layout \"%1\" cannot be read: %2")
                               .arg(path, file.errorString()));
    return ReadReportLayout(file.readAll(), path);
}
