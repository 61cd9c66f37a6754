// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

struct tMoonDate;
enum class MoonName : std::int32_t;

/// One lunation. All instants are GMT seconds: whole seconds since 1904-01-01 00:00:00 GMT.
struct tLunation {
    std::uint32_t lunationIndex; ///< Brown's lunation number, equal to the record's position in the table
    std::uint32_t newMoon;
    std::uint32_t firstQuarter;
    std::uint32_t fullMoon;
    std::uint32_t lastQuarter;
    std::uint32_t nextNewMoon; ///< the lunation's end, exclusive
    std::uint32_t length;      ///< seconds from `newMoon` to `nextNewMoon`
};

constexpr int kLunationCount = 1448;

/// The instants of a lunation by phase number: 0 new moon, 1 first quarter, 2 full moon, 3 last quarter, 4
/// the next new moon.
constexpr std::array<std::uint32_t tLunation::*, 5> kPhaseInstants{
    &tLunation::newMoon, &tLunation::firstQuarter, &tLunation::fullMoon, &tLunation::lastQuarter,
    &tLunation::nextNewMoon};

/// Upper bounds of the Moon pictures' intervals, in percent of the phase fraction. Picture 1 covers 0 to 1
/// inclusive; picture n everything above bound n - 1 up to and including bound n.
constexpr std::array<double, 28> kIconBounds{1,  2,  5,  10, 12.5, 17, 20, 25,   30, 35,   39, 42,   46, 50,
                                             54, 62, 66, 71, 75,   80, 84, 87.5, 90, 92.5, 95, 97.5, 99, 100};

/// The lunar engine. It answers from a table of lunations 0 to 1447 (the new moon of 1922-12-18 to that of
/// 2040-01-14) and holds the series that such a table is made with.
///
/// Every query takes GMT seconds. A moment outside the table gets a neutral answer: 0, false, no record, the
/// phrase "full", the name "a Wolf Moon". Queries before `Init` are all outside the table.
class CMoon {
public:
    CMoon() = default;

    /// Loads the table from the resource `Lunations.plist`; does nothing when it is loaded. A table that is
    /// missing, short, damaged or has gaps is logged, and the same table is computed.
    void Init();

    /// The record with newMoon <= t < nextNewMoon, or null.
    const tLunation* FindLunationForGMTSeconds(std::uint32_t t) const;

    /// Record i; the caller keeps i within 0 to 1447.
    const tLunation* FindLunationAtIndex(int i) const;

    /// The lunation number of t, 0 outside the table.
    int GetLunation(std::uint32_t t) const;

    /// Seconds from the new moon that begins t's lunation to t.
    std::uint32_t MoonAgeInSeconds(std::uint32_t t) const;

    /// Fills `upcoming`, five values indexed by phase number that the caller has set to 0, with the first
    /// instant of each kind strictly after t; 0 stays where the table holds none. A value that is not 0 on
    /// entry stays too.
    void GetUpcomingQuarters(std::uint32_t t, std::uint32_t* upcoming) const;

    /// How far t lies through its lunation, 0 to 1: 0.25 at first quarter, 0.5 at full moon, 0.75 at last
    /// quarter, and linear in time between two of these. An instant of a quarter belongs to the interval that
    /// it ends.
    double GetPhase(std::uint32_t t) const;

    /// The displayed illumination in percent, 0 to 100, linear in the phase fraction (50 at either quarter).
    double IlluminationDisplay(std::uint32_t t) const;

    /// The picture for t, 1 to 28; 0, with a log line, for a phase that is not a number.
    int MoonIconIndex(std::uint32_t t) const;

    /// The picture for a phase in percent; see `MoonIconIndex`.
    static int IconIndexForPercentage(double percentage);

    /// Whether the full moon of t's lunation is the second of its calendar month (default time zone).
    bool IsBlue(std::uint32_t t) const;

    /// The name of t's phase: "new", "a waxing crescent", ...
    MoonName GetDescriptorIndex(std::uint32_t t) const;

    /// The name of the first full moon after t, counted from the first full moon of t's year in the default
    /// time zone.
    MoonName GetAlmanacIndex(std::uint32_t t) const;

    /// The instant of a phase (0 new moon, 1 first quarter, 2 full moon, 3 last quarter) as a Julian
    /// Ephemeris Day. `k` counts lunations from the new moon of 2000-01-06, with .25, .5 and .75 for the
    /// later phases. Source: J. Meeus, Astronomical Algorithms, 1st edition (1991), chapter "Phases of the
    /// Moon".
    static double moonphase(double k, int phase);

    /// The instant of a phase of a lunation, `moonphase` taken as Universal Time and cut to whole seconds. As
    /// `MoonDateToSeconds` has it: GMT seconds where the default time zone is at GMT, else wall-clock
    /// seconds.
    static std::uint32_t TimeOfPhase(int lunation, int phase);

    /// The same in GMT seconds, whatever the default time zone.
    static std::uint32_t GMTTimeOfPhase(int lunation, int phase);

    /// Fills `date` from a Julian Day and gives `MoonDateToSeconds` of it. Seconds are cut, not rounded; days
    /// before 1582-10-15 come out in the Julian calendar. Source: J. Meeus, Astronomical Algorithms, chapter
    /// "Julian Day".
    static std::uint32_t JDtoDate(double jd, tMoonDate* date);

    /// Zone seconds: GMT seconds plus the offset of the zone that the user chose.
    static std::uint32_t GMTToZone(std::uint32_t gmtSeconds);

    bool loaded = false;
    std::array<tLunation, kLunationCount> lunations{};

private:
    void Compute();
    const tLunation* LunationOfNextFullMoon(std::uint32_t t) const;
    const tLunation* FirstLunationOfYear(std::uint32_t t) const;
};

/// The one engine of the program; read-only after its `Init` at start-up.
extern CMoon gMoon;
