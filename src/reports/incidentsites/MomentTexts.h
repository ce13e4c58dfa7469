#pragma once

#include "DateTime.h"
#include "Format.h"

#include <QHash>

/// The texts of dates or times of day in one format. Many touches share a day or a minute, and each
/// text is made once.
class MomentTexts {
public:
    enum Unit : qint64 { Day = DateTime::MillisecondsPerDay, Minute = 60'000 };
    /// In this format, all moments of one `unit` have the same text.
    MomentTexts(Unit unit, QString format) : m_unit(unit), m_format(std::move(format)) {}

    const QString& Of(DateTime moment) {
        QString& text = m_texts[KeyOf(moment)];
        if (text.isEmpty())
            text = Format(moment, m_format);
        return text;
    }

private:
    qint64 KeyOf(DateTime moment) const {
        return m_unit == Day ? moment.WholeDays() : moment.TimePart().Milliseconds() / m_unit;
    }

    Unit m_unit;
    QString m_format;
    QHash<qint64, QString> m_texts;
};
