// SPDX-License-Identifier: MIT
#include "app/engine/CRiseSet.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

struct Results {
    tRiseSetPair moon;
    tRiseSetPair sun;
    tRiseSetPair twilight;
};

Results resultsFor(const tRiseSetCalcParamBlock& block) {
    CRiseSet calculator;
    calculator.Calculate(block);
    Results results{};
    calculator.GetMoonInfo(results.moon);
    calculator.GetSunInfo(results.sun);
    calculator.GetTwilightInfo(results.twilight);
    return results;
}

void expectPair(const tRiseSetPair& pair, int riseHour, int riseMinute, int setHour, int setMinute,
                int state) {
    EXPECT_EQ(pair.riseHour, riseHour);
    EXPECT_EQ(pair.riseMinute, riseMinute);
    EXPECT_EQ(pair.setHour, setHour);
    EXPECT_EQ(pair.setMinute, setMinute);
    EXPECT_EQ(pair.state, state);
}

} // namespace

TEST(CRiseSetTest, NewYork) {
    const Results newYork = resultsFor({-74.006, 40.7128, -4, 21, 6, 2024});
    expectPair(newYork.sun, 5, 25, 20, 31, kRiseSetBoth);
    expectPair(newYork.twilight, 4, 9, 21, 47, kRiseSetBoth);
    expectPair(newYork.moon, 20, 49, 4, 29, kRiseSetBoth);
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

TEST(CRiseSetTest, JulianCalendarDate) {
    const Results svalbard = resultsFor({10, 78.2, 1, 1, 11, 1500});
    expectPair(svalbard.moon, 16, 53, 0, 0, kRiseSetNoSet);
    expectPair(svalbard.twilight, 7, 46, 16, 21, kRiseSetBoth);
    EXPECT_EQ(CRiseSet::MJD(15, 10, 1582, 0) - CRiseSet::MJD(4, 10, 1582, 0), 1.0);
    EXPECT_EQ(CRiseSet::MJD(1, 1, 2000, 12), 51544.5);
}

TEST(CRiseSetTest, OnlyAnotherRequestIsComputed) {
    const tRiseSetCalcParamBlock block{0.0, 51.0, 0.0, 1, 3, 2026};
    tRiseSetCalcParamBlock negativeZero = block;
    negativeZero.longitude = -0.0;
    EXPECT_TRUE(CRiseSet::BlocksAreEqual(block, block));
    EXPECT_FALSE(CRiseSet::BlocksAreEqual(block, negativeZero));

    CRiseSet calculator;
    tRiseSetPair first{};
    tRiseSetPair second{};
    calculator.Calculate(block);
    calculator.GetSunInfo(first);
    calculator.Calculate({0.0, 51.0, 5.5, 1, 3, 2026}); // the day from 18:30 GMT of the day before
    calculator.GetSunInfo(second);
    const int shift = second.riseHour * 60 + second.riseMinute - first.riseHour * 60 - first.riseMinute;
    EXPECT_NEAR(shift, 330, 2);
}

TEST(CRiseSetTest, MinutesAreRoundedAndMayReachMidnight) {
    int hour = 0;
    int minute = 0;
    CRiseSet::WHM(23.995, &hour, &minute);
    EXPECT_EQ(hour * 60 + minute, 24 * 60);
    CRiseSet::WHM(6.99, &hour, &minute);
    EXPECT_EQ(hour * 60 + minute, 6 * 60 + 59);
    CRiseSet::WHM(0.0, &hour, &minute);
    EXPECT_EQ(hour * 60 + minute, 0);
}

TEST(CRiseSetTest, ParabolasAndUnusableNumbers) {
    double xe = 0;
    double ye = 0;
    double root1 = 9;
    double root2 = 9;
    std::int32_t roots = -1;
    CRiseSet::QUAD(1, -1, 1, &xe, &ye, &root1, &root2, &roots); // 2x² - 1
    EXPECT_EQ(roots, 2);
    EXPECT_NEAR(root1, -std::sqrt(0.5), 1e-12);
    EXPECT_NEAR(ye, -1, 1e-12);
    CRiseSet::QUAD(2, 1, 2, &xe, &ye, &root1, &root2, &roots); // x² + 1
    EXPECT_EQ(roots, 0);
    EXPECT_NEAR(root1, -std::sqrt(0.5), 1e-12) << "without real roots the last ones stay";
    CRiseSet::QUAD(2, -0.5, -1, &xe, &ye, &root1, &root2, &roots); // one root inside
    EXPECT_EQ(roots, 1);
    EXPECT_LE(std::abs(root1), 1.0);

    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(resultsFor({nan, 10, 0, 1, 1, 2026}).sun.state, kRiseSetAlwaysBelow);
    EXPECT_EQ(resultsFor({10, 1e300, 1e300, 1, 1, 2026}).moon.riseHour, 0);
}
