// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/ExtraDateUtilities.h"

#include "platform/locale/DateFormatter.h"
#include "platform/locale/TimeZone.h"

namespace {

std::uint32_t presentOffset() {
    return static_cast<std::uint32_t>(TimeZone::secondsFromGMT(TimeZone::defaultTimeZone()));
}

/// What the default zone's clocks show at `date`, in seconds since 1970-01-01 00:00:00 on those clocks.
std::int64_t wallClock(const QDateTime& date) {
    return date.toSecsSinceEpoch() + TimeZone::defaultTimeZone().offsetFromUtc(date);
}

} // namespace

QDateTime ExtraDateUtilities::dateWithCarbonSecondsGMT(std::uint32_t wallClockSeconds) {
    return dateWithCarbonSeconds1(wallClockSeconds - presentOffset());
}

std::uint32_t ExtraDateUtilities::carbonSecondsGMT(const QDateTime& date) {
    const std::int64_t sinceReference = (date.toMSecsSinceEpoch() - kReferenceInstant * 1000) / 1000;
    return static_cast<std::uint32_t>(sinceReference) + presentOffset();
}

QDateTime ExtraDateUtilities::dateWithCarbonSeconds1(std::uint32_t gmtSeconds) {
    return QDateTime::fromSecsSinceEpoch(kReferenceInstant + gmtSeconds, QTimeZone::utc());
}

QString ExtraDateUtilities::timeStringWithSeconds(const QDateTime& date, bool withSeconds) {
    return DateFormatter::timeString(wallClock(date), withSeconds ? DateFormatter::Style::Medium
                                                                  : DateFormatter::Style::Short);
}

QString ExtraDateUtilities::dateStringWithFormat(const QDateTime& date, int style) {
    constexpr DateFormatter::Style kStyles[]{DateFormatter::Style::Short, DateFormatter::Style::Medium,
                                             DateFormatter::Style::Long};
    const bool known = style >= 0 && style <= 2;
    return DateFormatter::dateString(wallClock(date), known ? kStyles[style] : DateFormatter::Style::None);
}

CalendarFields ExtraCalendarDateUtilities::calendarDateWithCarbonSeconds1(std::uint32_t gmtSeconds) {
    return Calendar::fields(ExtraDateUtilities::kReferenceInstant + gmtSeconds, TimeZone::defaultTimeZone());
}
