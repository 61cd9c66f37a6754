// SPDX-License-Identifier: MIT
#include "platform/locale/Calendar.h"

#include <QDateTime>

#include <chrono>

using namespace std::chrono;

namespace {

int offsetAt(const QTimeZone& zone, std::int64_t instant) {
    return zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(instant, QTimeZone::utc()));
}

} // namespace

CalendarFields Calendar::fields(std::int64_t instant, int offsetSeconds) {
    const sys_seconds moment{seconds{instant + offsetSeconds}};
    const sys_days midnight = floor<days>(moment);
    const year_month_day date{midnight};
    const hh_mm_ss time{moment - midnight};
    return {.year = static_cast<int>(date.year()),
            .month = static_cast<int>(static_cast<unsigned>(date.month())),
            .day = static_cast<int>(static_cast<unsigned>(date.day())),
            .hour = static_cast<int>(time.hours().count()),
            .minute = static_cast<int>(time.minutes().count()),
            .second = static_cast<int>(time.seconds().count()),
            .weekday = static_cast<int>(weekday{midnight}.c_encoding())};
}

CalendarFields Calendar::fields(std::int64_t instant, const QTimeZone& zone) {
    return fields(instant, offsetAt(zone, instant));
}

std::int64_t Calendar::instant(const CalendarFields& fields) {
    const year_month first = year{fields.year} / January + months{fields.month - 1};
    const sys_days midnight = sys_days{first / day{1}} + days{fields.day - 1};
    return (midnight.time_since_epoch() + hours{fields.hour} + minutes{fields.minute} +
            seconds{fields.second}) /
           seconds{1};
}

std::int64_t Calendar::instant(const CalendarFields& fields, const QTimeZone& zone) {
    constexpr std::int64_t kDay = 86400;
    const std::int64_t wall = instant(fields);
    // The offset of the day before is the one in force before any change near this time; in a gap and in an
    // overlap alike it is the one to use.
    const int before = offsetAt(zone, wall - kDay);
    const int after = offsetAt(zone, wall - before);
    return offsetAt(zone, wall - after) == after ? wall - after : wall - before;
}
