// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include "platform/system/SystemVersion.h"
#include "shared/utilities/classes/ExtraStringSystemUtilities.h"

#include <gtest/gtest.h>

TEST(ExtraApplicationUtilitiesTest, TheVersionHasTwoDigitsForEachOfItsNumbers) {
    std::uint32_t decimal = 0;
    for (const int number : systemVersionNumbers())
        decimal = decimal * 100 + static_cast<std::uint32_t>(number);
    EXPECT_GT(decimal, 0U);
    EXPECT_EQ(ExtraStringUtilities::stringWithOSVersion(), QString::number(decimal));
    EXPECT_EQ(ExtraApplicationUtilities::systemVersion(), QString::number(decimal).toUInt(nullptr, 16));
}
