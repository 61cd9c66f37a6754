// SPDX-License-Identifier: MIT
#pragma once

#include <QTimeZone>

#include <cstdint>

/// The Gregorian calendar. Instants are whole seconds since 1970-01-01 00:00:00 UTC.
struct CalendarFields {
    int year = 1970;
    int month = 1; ///< 1 to 12
    int day = 1;   ///< 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;
    int weekday = 0; ///< 0 = Sunday to 6 = Saturday; not read by `instant`
};

namespace Calendar {

/// The fields that a clock `offsetSeconds` east of GMT shows at the instant.
CalendarFields fields(std::int64_t instant, int offsetSeconds);

/// The fields that the clocks of `zone` show at the instant.
CalendarFields fields(std::int64_t instant, const QTimeZone& zone);

/// The instant at which a clock at GMT shows the fields. Fields beyond their range carry over (hour 24 is the
/// next day's 0, month 13 next year's first).
std::int64_t instant(const CalendarFields& fields);

/// The instant at which the clocks of `zone` show the fields. A time that daylight-saving skips moves on by
/// the skipped span (2:30 becomes 3:30); of a time that comes twice, the first is meant.
std::int64_t instant(const CalendarFields& fields, const QTimeZone& zone);

} // namespace Calendar
