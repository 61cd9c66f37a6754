// SPDX-License-Identifier: MIT
#include "app/engine/CRiseSet.h"

#include <array>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

/// Hour and minute of the Sun's rise and the Moon's set, and the Moon's state.
std::array<int, 5> resultsFor(const tRiseSetCalcParamBlock& block) {
    CRiseSet calculator;
    calculator.Calculate(block);
    tRiseSetPair moon{};
    tRiseSetPair sun{};
    calculator.GetMoonInfo(moon);
    calculator.GetSunInfo(sun);
    return {sun.riseHour, sun.riseMinute, moon.setHour, moon.setMinute, moon.state};
}

} // namespace

TEST(CRiseSetTest, DaysOfBothCalendars) {
    EXPECT_EQ(resultsFor({-74.006, 40.7128, -4, 21, 6, 2024}),
              (std::array<int, 5>{5, 25, 4, 29, kRiseSetBoth}));
    EXPECT_EQ(resultsFor({10, 78.2, 1, 1, 11, 1500})[4], kRiseSetNoSet);
    EXPECT_EQ(CRiseSet::MJD(15, 10, 1582, 0) - CRiseSet::MJD(4, 10, 1582, 0), 1.0);
    // Zone hours move the day, here to 18:30 GMT of the day before.
    const auto gmt = resultsFor({0.0, 51.0, 0.0, 1, 3, 2026});
    const auto east = resultsFor({0.0, 51.0, 5.5, 1, 3, 2026});
    EXPECT_NEAR((east[0] - gmt[0]) * 60 + east[1] - gmt[1], 330, 2);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(resultsFor({nan, 10, 0, 1, 1, 2026})[4], kRiseSetAlwaysBelow);
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
