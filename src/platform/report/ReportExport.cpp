#include "ReportExport.h"

#include "Clock.h"
#include "Format.h"
#include "RowSource.h"
#include "RunTimeError.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

/// A value for other programs: texts as they are, dates in the one form that all can read.
QString PlainText(const QString& column, const Value& value) {
    const bool number = !value.IsNull() && !std::holds_alternative<QString>(value.Data());
    if (!number || !column.startsWith(u"dt"))
        return value.Text();
    return Format(value.Date(), QStringLiteral("yyyy-mm-dd")) + u'T' +
           Format(value.Date(), QStringLiteral("hh:nn:ss"));
}

QByteArray JsonValue(const QString& column, const Value& value) {
    return value.IsNull() ? QByteArray("null") : JsonText(PlainText(column, value));
}

QByteArray JsonRow(const RowSource& rows, qsizetype row) {
    QByteArray json = "{";
    const QStringList& names = rows.Columns();
    for (int column = 0; column < names.size(); ++column) {
        if (column > 0)
            json += ", ";
        json +=
            JsonText(names[column]) + ": " + JsonValue(names[column], rows.ValueAt(row, column));
    }
    return json + '}';
}

/// `count` items, each on a line of its own.
QByteArray JsonList(qsizetype count, const std::function<QByteArray(qsizetype)>& item) {
    QByteArray json = "[";
    for (qsizetype i = 0; i < count; ++i) {
        json += i == 0 ? "\n" : ",\n";
        json += item(i);
    }
    return json + "\n]";
}

QString CsvField(QString text) { return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"'; }

/// Hundredths of a millimetre that one letter takes: about the width of one on paper.
constexpr double LetterWidth = 500.0 / 3;
/// Controls of a section whose tops differ by less are on one line,
constexpr int SameLine = 200;
/// and belong together if the space between them is not larger than this.
constexpr int SameText = 100;

int Letters(int length) { return static_cast<int>(std::lround(length / LetterWidth)); }

using Line = std::vector<const ReportControl*>;

/// The labels and text boxes of a section, line by line, each from left to right.
std::vector<Line> LinesOf(const ReportSection& section) {
    Line texts;
    for (const ReportControl& control : section.AllControls())
        if (control.Kind() != ControlKind::Line)
            texts.push_back(&control);
    const auto box = [](const ReportControl* control) { return control->Style().box; };
    std::stable_sort(texts.begin(), texts.end(),
                     [&](auto* a, auto* b) { return box(a).top() < box(b).top(); });
    std::vector<Line> lines;
    for (const ReportControl* control : texts) {
        if (lines.empty() || box(control).top() - box(lines.back().front()).top() >= SameLine)
            lines.emplace_back();
        lines.back().push_back(control);
    }
    for (Line& line : lines)
        std::stable_sort(line.begin(), line.end(),
                         [&](auto* a, auto* b) { return box(a).left() < box(b).left(); });
    return lines;
}

/// A fixed label with the values next to it.
struct Pair {
    QString label;
    QString value;
    bool hasValue = false;
    bool isPageNumber = false;
};

class TextWriter {
public:
    explicit TextWriter(const DataReport& report)
        : m_report(report), m_words{{},
                                    {},
                                    Format(Now(), QStringLiteral("Short Date")),
                                    Format(Now(), QStringLiteral("Short Time"))} {}

    QByteArray Write() {
        AddLine(m_report.Caption());
        AddLine(QString(m_report.Caption().size(), u'='));
        WriteHead();
        PrepareRows();
        const Pagination& pages = m_report.Pages();
        for (std::size_t group = 0; group < pages.GroupCount(); ++group) {
            const Pagination::Rows rows = pages.RowsOf(group);
            if (!m_lines[Index(SectionKind::GroupHeader)].empty())
                m_text += '\n';
            WriteBand(SectionKind::GroupHeader, rows.first);
            for (qsizetype row = rows.first; row < rows.first + rows.count; ++row)
                WriteBand(SectionKind::Detail, row);
            WriteBand(SectionKind::GroupFooter, rows.first + rows.count - 1);
        }
        m_text += '\n';
        if (const ReportSection* footer = m_report.Layout().SectionOf(SectionKind::ReportFooter))
            for (const Line& line : LinesOf(*footer))
                for (const ReportControl* label : line)
                    AddLine(TextOf(*label));
        return std::move(m_text);
    }

private:
    struct Place {
        const ReportControl* control;
        int column; ///< of the rows; -1 for a label
    };

    static std::size_t Index(SectionKind kind) { return static_cast<std::size_t>(kind); }

    void AddLine(QString line) {
        while (line.endsWith(u' '))
            line.chop(1);
        if (m_report.RightToLeft() && !line.isEmpty())
            line.prepend(QChar(0x200F));
        m_text += WithoutControls(line).toUtf8() + '\n';
    }

    QString Isolated(const QString& text) const {
        return m_report.RightToLeft() ? QChar(0x2068) + text + QChar(0x2069) : text;
    }

    QString TextOf(const ReportControl& label) const {
        return label.KindOfCaption() == CaptionKind::Pattern ? m_words.Expanded(label.Caption())
                                                             : label.Caption();
    }

    /// The labels of a line, values put to the fixed label that they belong to.
    std::vector<Pair> PairsOf(const Line& line) const {
        std::vector<Pair> pairs;
        int end = 0;
        for (const ReportControl* control : line) {
            const QString& caption = control->Caption();
            const bool pattern = control->KindOfCaption() == CaptionKind::Pattern;
            const bool page = pattern && caption.contains(u"%p", Qt::CaseInsensitive);
            const bool fixed = pattern && TextOf(*control) == caption &&
                               std::any_of(caption.begin(), caption.end(),
                                           [](QChar letter) { return letter.isLetter(); });
            const QRect& box = control->Style().box;
            if (pairs.empty() || fixed || box.left() - end > SameText)
                pairs.emplace_back();
            end = box.left() + box.width();
            (fixed ? pairs.back().label : pairs.back().value) += TextOf(*control);
            pairs.back().hasValue |= !fixed;
            pairs.back().isPageNumber |= page;
        }
        return pairs;
    }

    void WriteHead() {
        const ReportSection* head = m_report.Layout().SectionOf(SectionKind::PageHeader);
        if (!head)
            return;
        const std::vector<Line> lines = LinesOf(*head);
        std::vector<Pair> pairs;
        bool headings = false;
        for (const Line& line : lines) {
            const std::vector<Pair> some = PairsOf(line);
            headings = std::none_of(some.begin(), some.end(),
                                    [](const Pair& pair) { return pair.hasValue; });
            pairs.insert(pairs.end(), some.begin(), some.end());
        }
        qsizetype width = 0;
        std::erase_if(pairs, [&](const Pair& pair) {
            return !pair.hasValue || pair.isPageNumber ||
                   (pair.label.isEmpty() && pair.value == m_report.Caption());
        });
        for (const Pair& pair : pairs)
            width = std::max(width, pair.label.size() + 2);
        for (const Pair& pair : pairs) {
            if (!pair.label.isEmpty())
                AddLine(Isolated(pair.label) + QString(width - pair.label.size(), u' ') +
                        Isolated(pair.value));
            else
                for (const QString& line : pair.value.split(u'\n'))
                    if (const QString text = line.trimmed(); !text.isEmpty())
                        AddLine(text);
        }
        m_text += '\n';
        if (headings) {
            std::vector<Place> places;
            for (const ReportControl* label : lines.back())
                places.push_back({label, -1});
            WriteLine(places, 0);
        }
    }

    void PrepareRows() {
        for (const ReportSection& section : m_report.Layout().sections) {
            if (!HasRow(section.Kind()) || section.Height() == 0)
                continue;
            const ReportControl* first = section.AllControls().data();
            const std::vector<int>& columns = m_report.ColumnsOf(section.Kind());
            for (const Line& line : LinesOf(section)) {
                std::vector<Place>& places = m_lines[Index(section.Kind())].emplace_back();
                for (const ReportControl* control : line)
                    places.push_back({control, columns[static_cast<std::size_t>(control - first)]});
            }
        }
    }

    void WriteBand(SectionKind kind, qsizetype row) {
        for (const std::vector<Place>& line : m_lines[Index(kind)])
            WriteLine(line, row);
    }

    void WriteLine(const std::vector<Place>& places, qsizetype row) {
        QString line;
        qsizetype length = 0; // of what can be seen of it
        for (const auto& [control, column] : places) {
            QString text = column < 0
                               ? TextOf(*control)
                               : control->TextOf(m_report.DataSource()->ValueAt(row, column));
            if (text.isEmpty())
                continue;
            if (IsRule(text))
                text.truncate(Letters(control->Style().box.width()));
            text.replace(u'\n', u' ').remove(u'\r');
            const qsizetype left = std::max<qsizetype>(length + (line.isEmpty() ? 0 : 1),
                                                       Letters(control->Style().box.left()));
            line += QString(left - length, u' ') + Isolated(text);
            length = left + text.size();
        }
        AddLine(line);
    }

    const DataReport& m_report;
    PageWords m_words;
    QByteArray m_text;
    std::array<std::vector<std::vector<Place>>, SectionKinds> m_lines;
};

const RowSource& RowsOf(const DataReport& report) {
    if (!report.DataSource())
        throw RunTimeError(RunTimeErrorNumber::ObjectClosed,
                           QStringLiteral("The report has no rows to export."));
    return *report.DataSource();
}

} // namespace

/// Not by way of a JSON object, which would order the columns by their names.
QByteArray JsonText(const QString& text) {
    const QByteArray wrapped = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2);
}

QByteArray ReportText(const DataReport& report) {
    RowsOf(report);
    return TextWriter(report).Write();
}

QByteArray ReportCsv(const DataReport& report) {
    const RowSource& rows = RowsOf(report);
    const QStringList& names = rows.Columns();
    QByteArray csv;
    const auto addLine = [&](const std::function<QString(int)>& field) {
        QStringList fields;
        for (int column = 0; column < names.size(); ++column)
            fields += CsvField(field(column));
        csv += fields.join(u',').toUtf8() + "\r\n";
    };
    addLine([&](int column) { return names[column]; });
    for (qsizetype row = 0; row < rows.RowCount(); ++row)
        addLine([&](int column) { return PlainText(names[column], rows.ValueAt(row, column)); });
    return csv;
}

QByteArray ReportJson(const DataReport& report) {
    const RowSource& rows = RowsOf(report);
    const QString& by = report.Layout().groupColumn;
    QByteArray json;
    if (by.isEmpty()) {
        json = JsonList(rows.RowCount(), [&](qsizetype row) { return JsonRow(rows, row); });
    } else {
        const int column = rows.Column(by);
        const Pagination& pages = report.Pages();
        json = JsonList(static_cast<qsizetype>(pages.GroupCount()), [&](qsizetype group) {
            const Pagination::Rows run = pages.RowsOf(static_cast<std::size_t>(group));
            return '{' + JsonText(by) + ": " + JsonValue(by, rows.ValueAt(run.first, column)) +
                   ", " + JsonText(report.Layout().groupRows) + ": " +
                   JsonList(run.count,
                            [&](qsizetype row) { return JsonRow(rows, run.first + row); }) +
                   '}';
        });
    }
    return "{\"title\": " + JsonText(report.Caption()) + ", \"rows\": " + json + "}\n";
}
