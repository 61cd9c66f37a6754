// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraDateUtilities.h"

#include "platform/foundation/NSDateFormatter.h"
#include "platform/foundation/NSTimeZone.h"

namespace {

std::uint32_t presentOffset() {
    return static_cast<std::uint32_t>(NSTimeZone::secondsFromGMT(NSTimeZone::defaultTimeZone()));
}

/// What the default zone's clocks show at `date`, in seconds since 1970-01-01 00:00:00 on those clocks.
std::int64_t wallClock(const QDateTime& date) {
    return date.toSecsSinceEpoch() + NSTimeZone::defaultTimeZone().offsetFromUtc(date);
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
    return QDateTime::fromSecsSinceEpoch(kReferenceInstant + gmtSeconds, Qt::UTC);
}

QString ExtraDateUtilities::timeStringWithSeconds(const QDateTime& date, bool withSeconds) {
    return NSDateFormatter::timeString(wallClock(date), withSeconds ? NSDateFormatter::Style::Medium
                                                                    : NSDateFormatter::Style::Short);
}

QString ExtraDateUtilities::dateStringWithFormat(const QDateTime& date, int style) {
    constexpr NSDateFormatter::Style kStyles[]{NSDateFormatter::Style::Short, NSDateFormatter::Style::Medium,
                                               NSDateFormatter::Style::Long};
    const bool known = style >= 0 && style <= 2;
    return NSDateFormatter::dateString(wallClock(date),
                                       known ? kStyles[style] : NSDateFormatter::Style::None);
}

NSDateComponents ExtraCalendarDateUtilities::calendarDateWithCarbonSeconds1(std::uint32_t gmtSeconds) {
    return NSCalendar::components(ExtraDateUtilities::kReferenceInstant + gmtSeconds,
                                  NSTimeZone::defaultTimeZone());
}
