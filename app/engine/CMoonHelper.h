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

/// The names of the Moon's phases and, from WolfMoon on, those of the year's full moons.
enum class MoonName : std::int32_t {
    New = 1,
    NearNew,
    PastNew,
    WaningCrescent,
    WaxingCrescent,
    PastLastQuarter,
    NearFirstQuarter,
    AtLastQuarter,
    AtFirstQuarter,
    NearLastQuarter,
    PastFirstQuarter,
    WaningGibbous,
    WaxingGibbous,
    PastFull,
    NearFull,
    Full,
    WolfMoon,
    SnowMoon,
    WormMoon,
    PinkMoon,
    FlowerMoon,
    StrawberryMoon,
    BuckMoon,
    SturgeonMoon,
    FruitOrBarleyMoon,
    HarvestMoon,
    HuntersMoon,
    BeaverMoon,
    ColdMoon,
};

/// The information templates; the numbers 5, 14 and 15 are not given. Their slots `^1`, `^2` and `^3` stand
/// for what the caller fills in, `^d`, `^h` and `^m` for a duration.
enum class Information : std::int32_t {
    MoonIs = 1,
    Illumination = 2,
    SinceNewMoon = 3,
    Lunation = 4,
    DateOutOfRange = 6,
    NextNewMoon = 7,
    NextFirstQuarter = 8,
    NextFullMoon = 9,
    NextLastQuarter = 10,
    DateAndTime = 11,
    NextFullMoonIs = 12,
    CopyToClipboard = 13,
    OpenApplication = 16,
    Sun = 17,
    NauticalTwilight = 18,
    Moon = 19,
    RiseAndSet = 20,
    NoRise = 21,
    NoSet = 22,
    AlwaysVisible = 23,
    AlwaysBright = 24,
    AlwaysInvisible = 25,
    AlwaysDark = 26,
};

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

    /// A moon name ("a waxing crescent") in the user's language. One that is none of the enumeration's is
    /// logged and gives an empty text.
    static QString stringForMoonName(MoonName name);

    /// The same for an information template.
    static QString stringForInformation(Information information);

    /// Fills `^d`, `^h` and `^m` with the whole days, hours and minutes of a duration; its sign and the
    /// seconds left over are dropped.
    static void SubstituteDaysHoursMinutes(QString& text, std::int32_t seconds);

    /// A rise and set request from the preferences for a moment in zone seconds. The day asked for is the
    /// *system zone's* reading of the zone seconds, so that with zone type 2 the system's offset counts
    /// twice.
    static void BuildRiseSetBlock(std::uint32_t seconds, tRiseSetCalcParamBlock& block);

    /// The line of the Sun, the nautical twilight or the Moon for a moment in zone seconds; a null string
    /// without a calculator. Any other template gets two midnights.
    static QString FormatDataAsString(CRiseSet* calculator, Information line, std::uint32_t seconds);

    /// A local time of day (default zone) in the user's short format. Hour 24 is the next day's midnight.
    static QString DateStringFromComponents(int year, int month, int day, int hour, int minute);
};
