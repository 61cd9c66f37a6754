// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

#include <cstdint>

/// Dates and times of day as the user reads them, in the locale of LC_TIME with the Gregorian calendar, and
/// with the desktop's own choice of a 12- or 24-hour clock where the desktop keeps one (GNOME and its kin).
class DateFormatter {
public:
    enum class Style { None, Short, Medium, Long };

    /// The date of the wall-clock moment `wall` (seconds since 1970-01-01 00:00:00 on the clock that is to be
    /// shown, whatever its zone). `Style::None` gives an empty string.
    static QString dateString(std::int64_t wall, Style style);

    /// The time of day of `wall`: hours and minutes in the short style, seconds too in the medium one.
    static QString timeString(std::int64_t wall, Style style);

    /// The locale of LC_TIME for Qt's own date widgets.
    static QLocale locale();

    /// The Qt format for editing a date with a four-digit year and a time of day with seconds, in the
    /// locale's order and the user's hour cycle.
    static QString editingFormat();
};
