// SPDX-License-Identifier: MIT
#pragma once

#include <QTimeZone>

/// Stands for Foundation's time zones. Backed by QTimeZone, read afresh at every call, so that a change of
/// the system's zone counts at once. A zone that the system can't name (a misspelt `TZ`) is logged once and
/// is UTC.
namespace NSTimeZone {

QTimeZone systemTimeZone();

/// The zone that dates are read and shown in. The program never sets another one than the system's.
inline QTimeZone defaultTimeZone() {
    return systemTimeZone();
}

/// The zone's identifier, such as "Europe/Berlin".
QString name(const QTimeZone& zone);

/// Offset of `zone` from GMT in force now, in seconds, east positive, daylight-saving time included.
int secondsFromGMT(const QTimeZone& zone);

/// Whether `zone` keeps daylight-saving time now.
bool isDaylightSavingTime(const QTimeZone& zone);

} // namespace NSTimeZone
