// SPDX-License-Identifier: MIT
#pragma once

#include "platform/locale/Calendar.h"

#include <QDateTime>

#include <cstdint>

/// Conversions between instants and Carbon seconds: unsigned 32-bit counts since 1904-01-01 00:00:00, which
/// wrap. GMT seconds are a true instant; wall-clock seconds are GMT seconds plus the default zone's offset in
/// force now, whatever the instant that they count to.
namespace ExtraDateUtilities {

/// 1904-01-01 00:00:00 GMT in seconds since 1970-01-01 00:00:00 GMT.
constexpr std::int64_t kReferenceInstant = -2082844800;

/// The instant of wall-clock seconds.
QDateTime dateWithCarbonSecondsGMT(std::uint32_t wallClockSeconds);

/// The wall-clock seconds of an instant; the inverse of `dateWithCarbonSecondsGMT`.
std::uint32_t carbonSecondsGMT(const QDateTime& date);

/// The instant of GMT seconds.
QDateTime dateWithCarbonSeconds1(std::uint32_t gmtSeconds);

/// The time of day in the default zone, in the user's short time style or, with seconds, the medium one.
QString timeStringWithSeconds(const QDateTime& date, bool withSeconds);

/// The date in the default zone: style 0 short, 1 medium, 2 long; any other style gives an empty string.
QString dateStringWithFormat(const QDateTime& date, int style);

} // namespace ExtraDateUtilities

namespace ExtraCalendarDateUtilities {

/// The fields that the default zone's clocks show at the instant of GMT seconds.
CalendarFields calendarDateWithCarbonSeconds1(std::uint32_t gmtSeconds);

} // namespace ExtraCalendarDateUtilities
