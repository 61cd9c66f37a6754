// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include "platform/carbon/Gestalt.h"
#include "shared/utilities/classes/ExtraStringUtilities.h"

#include <gtest/gtest.h>

TEST(ExtraApplicationUtilitiesTest, TheVersionHasTwoDigitsForEachOfItsNumbers) {
    std::uint32_t decimal = 0;
    for (const OSType selector : {fourCharCode("sys1"), fourCharCode("sys2"), fourCharCode("sys3")}) {
        std::int32_t number = 0;
        ASSERT_EQ(Gestalt(selector, &number), noErr);
        decimal = decimal * 100 + static_cast<std::uint32_t>(number);
    }
    EXPECT_EQ(ExtraStringUtilities::stringWithOSVersion(), QString::number(decimal));
    EXPECT_EQ(ExtraApplicationUtilities::systemVersion(), QString::number(decimal).toUInt(nullptr, 16));
}
