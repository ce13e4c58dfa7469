#pragma once

#include "LastMinute.h"

#include <QWidget>

class QDateEdit;
class QTimeEdit;

/// Prepares a date field: it shows today in the user's format, offers a calendar, and selects the
/// part that is clicked.
void PrepareDateField(QDateEdit& field);

/// The range of time of a report, in minutes: the fields `dtpStartDate`, `dtpStartTime`,
/// `dtpEndDate` and `dtpEndTime` with their labels. It begins as the whole of today. A range that
/// ends before it starts is accepted; each report says what it does with one.
class DateTimeRange : public QWidget {
    Q_OBJECT
public:
    explicit DateTimeRange(QWidget* parent = nullptr);

    /// From 00:00:00 on the first day to 23:59:59 on the last.
    void SetDays(const QDate& first, const QDate& last);

    /// The first second of the start's minute.
    DateTime Start() const;
    /// The last instant of the range, in whole seconds.
    DateTime End(LastMinute lastMinute) const;

private:
    QDateEdit* m_startDate;
    QTimeEdit* m_startTime;
    QDateEdit* m_endDate;
    QTimeEdit* m_endTime;
};
