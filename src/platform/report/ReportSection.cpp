#include "ReportSection.h"

#include "Format.h"
#include "RunTimeError.h"
#include "Value.h"

#include <algorithm>

bool IsRule(QStringView text) {
    constexpr qsizetype shortest = 10;
    return text.size() >= shortest && (text.front() == u'_' || text.front() == u'-') &&
           std::all_of(text.begin(), text.end(),
                       [&](QChar letter) { return letter == text.front(); });
}

ReportControl::ReportControl(QString name, ControlKind kind, const ControlStyle& style,
                             QString caption, QString dataField)
    : m_name(std::move(name)), m_kind(kind), m_style(style), m_caption(std::move(caption)),
      m_dataField(std::move(dataField)) {}

void ReportControl::SetCaption(const QString& caption, CaptionKind kind) {
    m_caption = caption;
    m_captionKind = kind;
}

QString ReportControl::TextOf(const Value& value) const {
    if (m_dataFormat.isEmpty() || value.IsNull())
        return value.Text();
    const auto* text = std::get_if<QString>(&value.Data());
    const std::optional<DateTime> date = text ? DateTimeFromText(*text) : value.Date();
    return date ? Format(*date, m_dataFormat) : *text;
}

QString ReportControl::PrintedTextOf(const Value& value) const {
    const QString text = TextOf(value);
    const auto sign = m_signs.constFind(text);
    return sign == m_signs.constEnd() ? text : *sign + u' ' + text;
}

ReportSection::ReportSection(QString name, SectionKind kind, int height)
    : m_name(std::move(name)), m_kind(kind), m_height(height) {}

const ReportControl* ReportSection::Find(QStringView name) const {
    for (const ReportControl& control : m_controls)
        if (name.compare(control.Name(), Qt::CaseInsensitive) == 0)
            return &control;
    return nullptr;
}

ReportControl& ReportSection::Controls(QStringView name) {
    if (const ReportControl* found = Find(name))
        return m_controls[static_cast<std::size_t>(found - m_controls.data())];
    throw RunTimeError(
        RunTimeErrorNumber::NoSuchItem,
        QStringLiteral("The section \"%1\" has no control \"%2\".").arg(m_name, name));
}
