// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

/// A request: one calendar day at one place. Two requests are the same when all their bytes are.
struct tRiseSetCalcParamBlock {
    double longitude;   ///< degrees, east positive
    double latitude;    ///< degrees, north positive
    double zoneHours;   ///< offset of the wanted local time from GMT in hours, east positive
    std::int32_t day;   ///< 1 to 31
    std::int32_t month; ///< 1 to 12
    std::int32_t year;  ///< Gregorian; Julian up to 1582-10-04
};

enum tRiseSetState : std::int32_t {
    kRiseSetBoth = 0,         ///< a rise and a set
    kRiseSetNoRise = 1,       ///< only a set
    kRiseSetNoSet = 2,        ///< only a rise
    kRiseSetAlwaysAbove = 3,  ///< Moon or Sun: above its target altitude all day
    kRiseSetAlwaysBright = 4, ///< twilight: the Sun above -12° all day
    kRiseSetAlwaysBelow = 5,  ///< Moon or Sun: below its target altitude all day
    kRiseSetAlwaysDark = 6,   ///< twilight: the Sun below -12° all day
};

/// One result, in local time of the request's zone counted from its day's midnight (hour 24 is possible).
/// Fields without a time are 0. For twilight, rise is its morning begin and set its evening end.
struct tRiseSetPair {
    std::int32_t riseHour;
    std::int32_t riseMinute;
    std::int32_t setHour;
    std::int32_t setMinute;
    std::int32_t state; ///< a tRiseSetState
};

/// Rise and set of Moon and Sun and nautical twilight, good to a minute or two for these centuries outside
/// the polar regions. Source: O. Montenbruck, T. Pfleger, Astronomy on the Personal Computer, chapter
/// "Sunrise and Sunset" (program SUNMOON), with that program's constants.
class CRiseSet {
public:
    enum tObject : std::int32_t { kRiseSetMoon = 1, kRiseSetSun = 2, kRiseSetTwilight = 3 };

    CRiseSet();

    /// Computes all three results for `block`; costs nothing for the same request as the last one. Numbers
    /// that are not finite give results without crossings.
    void Calculate(const tRiseSetCalcParamBlock& block);

    /// The results of the last `Calculate`; all zero before the first.
    void GetMoonInfo(tRiseSetPair& pair) const;
    void GetSunInfo(tRiseSetPair& pair) const;
    void GetTwilightInfo(tRiseSetPair& pair) const;

    /// Whether all 36 bytes are equal, so that -0.0 differs from 0.0.
    static bool BlocksAreEqual(const tRiseSetCalcParamBlock& a, const tRiseSetCalcParamBlock& b);

    /// Sine of the altitude of an object (1 Moon, any other the Sun) `hour` hours after the Modified Julian
    /// Date mjd0. lambda: longitude in degrees, west positive; cphi, sphi: cosine and sine of the latitude.
    static double SIN_ALT(std::int32_t object, double mjd0, double hour, double lambda, double cphi,
                          double sphi);

    /// Right ascension (hours, 0 to 24) and declination (degrees) of the Moon, to about 5'. t: Julian
    /// centuries since J2000 (MJD 51544.5).
    static void MINI_MOON(double t, double* ra, double* dec);

    /// The same of the Sun, to about 1'.
    static void MINI_SUN(double t, double* ra, double* dec);

    /// Local mean sidereal time in hours; lambda: degrees, west positive.
    static double LMST(double mjd, double lambda);

    /// The parabola through (-1, yMinus), (0, y0), (1, yPlus): its extremum and, where it has any, its roots.
    /// nRoots counts those within -1 to 1; a single one is in root1. Without real roots root1 and root2 stay
    /// as they are.
    static void QUAD(double yMinus, double y0, double yPlus, double* xe, double* ye, double* root1,
                     double* root2, std::int32_t* nRoots);

    /// Modified Julian Date of a calendar date (Julian up to 1582-10-04) and an hour.
    static double MJD(std::int32_t day, std::int32_t month, std::int32_t year, double hour);

    static double SN(double degrees); ///< sine of an angle in degrees
    static double CS(double degrees); ///< cosine of an angle in degrees
    static double FRAC(double x);     ///< fractional part, 0 <= FRAC < 1

    /// Hours rounded to a whole minute.
    static void WHM(double hours, int* hour, int* minute);

private:
    class AltitudeSamples;
    static tRiseSetPair Search(tObject object, AltitudeSamples& samples);

    tRiseSetPair moon_{};
    tRiseSetPair sun_{};
    tRiseSetPair twilight_{};
    tRiseSetCalcParamBlock cached_{};
};
