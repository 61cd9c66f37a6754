// SPDX-License-Identifier: MIT
#include "app/engine/CRiseSet.h"

#include <array>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

/// Hour and minute of rise and set, and the state, of Moon, Sun and twilight.
std::array<std::array<int, 5>, 3> resultsFor(const tRiseSetCalcParamBlock& block) {
    CRiseSet calculator;
    calculator.Calculate(block);
    std::array<tRiseSetPair, 3> pairs{};
    calculator.GetMoonInfo(pairs[0]);
    calculator.GetSunInfo(pairs[1]);
    calculator.GetTwilightInfo(pairs[2]);
    std::array<std::array<int, 5>, 3> results{};
    for (std::size_t i = 0; i < 3; ++i)
        results[i] = {pairs[i].riseHour, pairs[i].riseMinute, pairs[i].setHour, pairs[i].setMinute,
                      pairs[i].state};
    return results;
}

} // namespace

TEST(CRiseSetTest, DaysOfBothCalendars) {
    const auto newYork = resultsFor({-74.006, 40.7128, -4, 21, 6, 2024});
    EXPECT_EQ(newYork[0], (std::array<int, 5>{20, 49, 4, 29, kRiseSetBoth}));
    EXPECT_EQ(newYork[1], (std::array<int, 5>{5, 25, 20, 31, kRiseSetBoth}));
    EXPECT_EQ(newYork[2], (std::array<int, 5>{4, 9, 21, 47, kRiseSetBoth}));
    const auto svalbard = resultsFor({10, 78.2, 1, 1, 11, 1500});
    EXPECT_EQ(svalbard[0], (std::array<int, 5>{16, 53, 0, 0, kRiseSetNoSet}));
    EXPECT_EQ(svalbard[2], (std::array<int, 5>{7, 46, 16, 21, kRiseSetBoth}));
    EXPECT_EQ(CRiseSet::MJD(15, 10, 1582, 0) - CRiseSet::MJD(4, 10, 1582, 0), 1.0);
    EXPECT_EQ(CRiseSet::MJD(1, 1, 2000, 12), 51544.5);
    // Zone hours move the day, here to 18:30 GMT of the day before.
    const auto gmt = resultsFor({0.0, 51.0, 0.0, 1, 3, 2026})[1];
    const auto east = resultsFor({0.0, 51.0, 5.5, 1, 3, 2026})[1];
    EXPECT_NEAR((east[0] - gmt[0]) * 60 + east[1] - gmt[1], 330, 2);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(resultsFor({nan, 10, 0, 1, 1, 2026})[1][4], kRiseSetAlwaysBelow);
    EXPECT_EQ(resultsFor({10, 1e300, 1e300, 1, 1, 2026})[0][0], 0);
}

// The short way to the altitude must not lose what the way through right ascension and declination has, least
// of all near 12 hours, where the Sun is in September.
TEST(CRiseSetTest, AltitudesFollowFromThePositions) {
    const double cphi = CRiseSet::CS(52.5);
    const double sphi = CRiseSet::SN(52.5);
    for (int i = 0; i < 20000; ++i) {
        const double mjd = 30000.0 + i * 1.37;
        const double lambda = i % 360 - 180.0;
        for (const auto object : {CRiseSet::kRiseSetMoon, CRiseSet::kRiseSetSun}) {
            double ra = 0;
            double dec = 0;
            const auto position = object == CRiseSet::kRiseSetMoon ? CRiseSet::MINI_MOON : CRiseSet::MINI_SUN;
            position((mjd - 51544.5) / 36525.0, &ra, &dec);
            const double tau = 15.0 * (CRiseSet::LMST(mjd, lambda) - ra);
            ASSERT_NEAR(CRiseSet::SIN_ALT(object, mjd, 0, lambda, cphi, sphi),
                        cphi * CRiseSet::CS(dec) * CRiseSet::CS(tau) + sphi * CRiseSet::SN(dec), 1e-9)
                << mjd;
        }
    }
}

TEST(CRiseSetTest, MinutesAreRoundedUpToMidnight) {
    int hour = 0;
    int minute = 0;
    CRiseSet::WHM(23.995, &hour, &minute);
    EXPECT_EQ(hour * 60 + minute, 24 * 60);
}
