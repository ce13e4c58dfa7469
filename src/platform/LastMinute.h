#pragma once

#include "DateTime.h"

/// How much of a range's last minute belongs to it: all of it, or its first second only.
enum class LastMinute { Whole, FirstSecond };

/// The last instant of a range, in whole seconds. `minute` is the start of its last minute.
constexpr DateTime EndOfRange(DateTime minute, LastMinute lastMinute) {
    return lastMinute == LastMinute::Whole ? minute + DateTime::FromTime(0, 0, 59) : minute;
}
