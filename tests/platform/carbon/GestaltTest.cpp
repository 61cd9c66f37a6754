// SPDX-License-Identifier: MIT
#include "platform/carbon/Gestalt.h"

#include <QSettings>

#include <gtest/gtest.h>

TEST(GestaltTest, TellsTheSystemsVersion) {
    std::int32_t major = -1;
    ASSERT_EQ(Gestalt(fourCharCode("sys1"), &major), noErr);
    const QString release = QSettings(QStringLiteral("/etc/os-release"), QSettings::IniFormat)
                                .value(QStringLiteral("VERSION_ID"))
                                .toString();
    if (const int stated = release.section(u'.', 0, 0).toInt(); stated > 0)
        EXPECT_EQ(major, std::min(stated, 99));
    else
        EXPECT_GT(major, 0) << "the kernel's number stands in";
    std::int32_t packed = 0;
    ASSERT_EQ(Gestalt(fourCharCode("sysv"), &packed), noErr);
    EXPECT_EQ(packed >> 12 & 0xF, major / 10);
    EXPECT_EQ(packed >> 8 & 0xF, major % 10);
}

TEST(GestaltTest, AnUnknownSelectorIsRefused) {
    std::int32_t answer = 42;
    EXPECT_EQ(Gestalt(fourCharCode("moon"), &answer), gestaltUndefSelectorErr);
    EXPECT_EQ(answer, 42);
}
