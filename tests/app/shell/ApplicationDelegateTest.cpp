// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "platform/preferences/Preferences.h"
#include "tests/TestMain.h"

#include <gtest/gtest.h>

TEST(ApplicationDelegateTest, APersonsFirstStartReadsTheDefaults) {
    const InZone newYork("America/New_York");
    Preferences* defaults = Preferences::standard();
    defaults->setBool(true, SUAllowsAutomaticUpdatesKey);
    defaults->setBool(true, SUAutomaticallyUpdateKey);
    const ApplicationDelegate delegate;

    EXPECT_EQ(defaults->integerForKey(QStringLiteral("LVTimeZoneType")), 2);
    EXPECT_EQ(defaults->floatForKey(QStringLiteral("LVTimeZoneCustomGMTOffset")), 0.0F);
    EXPECT_EQ(defaults->stringForKey(QStringLiteral("LVTimeZoneGMTOffsetTitle")), QStringLiteral("GMT +0"));
    EXPECT_NEAR(defaults->floatForKey(QStringLiteral("LVLatitude")), 40.714, 0.001);
    EXPECT_NEAR(defaults->floatForKey(QStringLiteral("LVLongitude")), -74.006, 0.001);
    EXPECT_EQ(defaults->floatForKey(QStringLiteral("LVBrightness")), 0.5F);
    for (const char* section : {"Calculation", "Information", "RiseSet", "Settings", "Moon"})
        EXPECT_TRUE(defaults->boolForKey(QStringLiteral("LV%1Disclosure").arg(QLatin1String(section))));
    EXPECT_TRUE(defaults->stringForKey(QStringLiteral("LVNotApplicationsFolderWarning")).isEmpty());
    EXPECT_TRUE(defaults->boolForKey(SUEnableAutomaticChecksKey));
    EXPECT_EQ(defaults->integerForKey(SUScheduledCheckIntervalKey), 604800);
    EXPECT_FALSE(defaults->boolForKey(SUAllowsAutomaticUpdatesKey)) << "whatever was there";
    EXPECT_FALSE(defaults->boolForKey(SUAutomaticallyUpdateKey));
}
