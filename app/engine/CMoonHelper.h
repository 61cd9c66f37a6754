// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

class CRiseSet;
struct tRiseSetCalcParamBlock;

/// A calendar date with time of day.
struct tMoonDate {
    std::int32_t year;   ///< full Gregorian year
    std::int32_t month;  ///< 1 to 12
    std::int32_t day;    ///< 1 to 31
    std::int32_t hour;   ///< 0 to 23
    std::int32_t minute; ///< 0 to 59
    std::int32_t second; ///< 0 to 59
    std::int32_t isPM;   ///< 1 from noon on; converters only ever set it, so a caller zeroes the record first
};

/// The date record of the rise and set side.
struct DateTimeRec {
    std::int16_t year;
    std::int16_t month; ///< 1 to 12
    std::int16_t day;   ///< 1 to 31
    std::int16_t hour;
    std::int16_t minute;
    std::int16_t second;
    std::int16_t dayOfWeek; ///< 0 = Sunday to 6 = Saturday
};

/// What the preference LVTimeZoneType holds; any other value behaves as kTimeZoneGMT.
enum tTimeZoneType { kTimeZoneGMT = 1, kTimeZoneSystem = 2, kTimeZoneCustom = 3 };

/// Fills `date` with the local calendar reading (default time zone) of the instant 1904-01-01 00:00:00 GMT
/// plus `seconds`; does nothing without a record.
void LVSecondsToDate(std::uint32_t seconds, DateTimeRec* date);

/// Calendar, time-zone and text operations around the lunar engine. Preferences are read at every call. A
/// zone's offset is always the one in force now, not the one at the moment that is converted.
class CMoonHelper {
public:
    /// Fills `date` from wall-clock seconds (GMT seconds plus the default zone's present offset) with the
    /// fields that the default zone shows at that instant.
    static void SecondsToMoonDate(std::uint32_t seconds, tMoonDate& date);

    /// GMT seconds of the fields, read as GMT, plus the default zone's present offset. `isPM` is not read.
    static std::uint32_t MoonDateToSeconds(const tMoonDate& date);

    /// GMT seconds of the fields, read as GMT.
    static std::uint32_t MoonDateToGMTSeconds(const tMoonDate& date);

    static int prefZoneType();              ///< LVTimeZoneType as stored
    static float prefCustomZoneGMTOffset(); ///< LVTimeZoneCustomGMTOffset, hours east of GMT

    /// The offset of the zone that the user chose, in seconds east of GMT.
    static int prefZoneOffset();

    /// The system zone's present offset in seconds, east positive.
    static int GetGMTOffset();

    static bool DaylightSavingsIsOn();

    /// The moon name of an index: 1 to 16 phases ("a waxing crescent"), 17 to 29 full moons ("a Wolf Moon"),
    /// in the user's language. Any other index is logged and gives an empty text.
    static QString stringForMoonName(int index);

    /// The information template of an index (1 to 26 with gaps), in the user's language. `^1`, `^2`, `^3`
    /// stand for what the caller fills in, `^d`, `^h`, `^m` for a duration. An unknown index is logged and
    /// gives an empty text.
    static QString stringForInformation(int index);

    /// Fills `^d`, `^h` and `^m` with the whole days, hours and minutes of a duration; its sign and the
    /// seconds left over are dropped.
    static void SubstituteDaysHoursMinutes(QString& text, std::int32_t seconds);

    /// A rise and set request from the preferences for a moment in zone seconds. The day asked for is the
    /// *system zone's* reading of the zone seconds, so that with zone type 2 the system's offset counts
    /// twice.
    static void BuildRiseSetBlock(std::uint32_t seconds, tRiseSetCalcParamBlock& block);

    /// The line of the Sun (17), nautical twilight (18) or the Moon (19) for a moment in zone seconds; a null
    /// string without a calculator.
    static QString FormatDataAsString(CRiseSet* calculator, int index, std::uint32_t seconds);

    /// A local time of day (default zone) in the user's short format. Hour 24 is the next day's midnight.
    static QString DateStringFromComponents(int year, int month, int day, int hour, int minute);
};
