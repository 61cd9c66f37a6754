// SPDX-License-Identifier: MIT
#pragma once

#include <QTimeZone>

/// The system's time zone, read afresh at every call, so that a change of it counts at once; but once for a
/// refresh that holds the clock.
namespace TimeZone {

/// The system's zone, or the one that `TZ` names as the C library reads it, with or without a leading colon:
/// a zone ("Europe/Berlin"), a zone file's path, or a POSIX rule ("CET-1CEST"). A value that is none of
/// these is logged once and is UTC.
QTimeZone systemTimeZone();

/// The folder of the system's zone files and tables: `TZDIR`, else /usr/share/zoneinfo.
QString zoneInfoFolder();

/// The zone that dates are read and shown in. The program never sets another one than the system's.
inline QTimeZone defaultTimeZone() {
    return systemTimeZone();
}

/// The zone's identifier, such as "Europe/Berlin".
QString name(const QTimeZone& zone);

/// Offset of `zone` from GMT in force now, in seconds, east positive, daylight-saving time included.
int secondsFromGMT(const QTimeZone& zone);

/// Whether `zone` keeps daylight-saving time now: whether its present offset is larger than this year's
/// smallest. The zone's own flag won't do: Ireland's marks the winter.
bool isDaylightSavingTime(const QTimeZone& zone);

} // namespace TimeZone
