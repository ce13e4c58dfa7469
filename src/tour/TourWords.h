#pragma once

#include "TourEvaluation.h"

#include <QHash>

/// How an operator reads an evaluation. All texts are translated.

/// "5 points: 3 on time, 1 late, 1 missing". What did not happen is left out.
QString PointSummary(const PointCounts& counts);

/// One part of the summary with its sign in front, such as "▶ 1 late"; empty for 0 points.
QString OnTimeText(int points);
QString EarlyText(int points);
QString LateText(int points);
QString MissingText(int points);

/// The word of a touch in the report.
QString StatusWord(TouchClass touchClass);

/// For each status word of the report, the sign that stands before it on paper. So nobody needs to
/// read the language, or see a colour, to find what went wrong.
QHash<QString, QString> StatusSigns();
