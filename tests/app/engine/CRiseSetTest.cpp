// SPDX-License-Identifier: MIT
#include "app/engine/CRiseSet.h"

#include <gtest/gtest.h>

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
