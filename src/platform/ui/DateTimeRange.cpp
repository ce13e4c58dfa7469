#include "DateTimeRange.h"

#include "Clock.h"
#include "Format.h"
#include "WindowTools.h"

#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QTimeEdit>

namespace {

DateTime MinuteOf(const QDateEdit& date, const QTimeEdit& time) {
    return DateTime::FromQt(date.date()) +
           DateTime::FromTime(time.time().hour(), time.time().minute());
}

} // namespace

void PrepareDateField(QDateEdit& field) {
    SelectSectionOnFocus(field);
    field.setCalendarPopup(true);
    field.setDisplayFormat(GetShortDateFormat());
    field.setDate(Today().ToQDate());
}

DateTimeRange::DateTimeRange(QWidget* parent)
    : QWidget(parent), m_startDate(new QDateEdit(this)), m_startTime(new QTimeEdit(this)),
      m_endDate(new QDateEdit(this)), m_endTime(new QTimeEdit(this)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](QWidget* field, const char* name, const char* label, int row, int column) {
        field->setObjectName(QStringLiteral("dtp") + QString::fromUtf8(name));
        auto* text = new QLabel(QString::fromUtf8(label), this);
        text->setObjectName(QStringLiteral("lbl") + QString::fromUtf8(name));
        text->setBuddy(field);
        grid->addWidget(text, row, column);
        grid->addWidget(field, row, column + 1);
        grid->setColumnStretch(column + 1, 1);
    };
    add(m_startDate, "StartDate", QT_TR_NOOP("&Start Date"), 0, 0);
    add(m_startTime, "StartTime", QT_TR_NOOP("Start &Time"), 0, 2);
    add(m_endDate, "EndDate", QT_TR_NOOP("En&d Date"), 1, 0);
    add(m_endTime, "EndTime", QT_TR_NOOP("End Ti&me"), 1, 2);
    for (QDateEdit* date : {m_startDate, m_endDate})
        PrepareDateField(*date);
    for (QTimeEdit* time : {m_startTime, m_endTime}) {
        SelectSectionOnFocus(*time);
        time->setDisplayFormat(QStringLiteral("HH:mm"));
    }
    setFocusProxy(m_startDate);
    SetDays(m_startDate->date(), m_endDate->date());
}

void DateTimeRange::SetDays(const QDate& first, const QDate& last) {
    m_startDate->setDate(first);
    m_startTime->setTime(QTime(0, 0));
    m_endDate->setDate(last);
    m_endTime->setTime(QTime(23, 59, 59));
}

DateTime DateTimeRange::Start() const { return MinuteOf(*m_startDate, *m_startTime); }

DateTime DateTimeRange::End(LastMinute lastMinute) const {
    return EndOfRange(MinuteOf(*m_endDate, *m_endTime), lastMinute);
}
