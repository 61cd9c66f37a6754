// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraSliderUtilities.h"

#include "platform/layouts/Slider.h"
#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(ExtraSliderUtilitiesTest, TheReverseValueIsTheNegatedOneWithinItsRange) {
    using namespace ExtraSliderUtilities;
    Slider slider;
    setReverseMaxValue(&slider, 0.975);
    setReverseMinValue(&slider, 0.025);
    EXPECT_EQ(slider.minValue(), -0.975);
    EXPECT_EQ(slider.maxValue(), -0.025);
    EXPECT_EQ(reverseMaxValue(&slider), 0.975);
    EXPECT_EQ(reverseMinValue(&slider), 0.025);
    using Row = std::tuple<double, double>;
    for (const auto& [value, held] :
         {Row{0.1234567890123456, 0.1234567890123456}, Row{1.0 / 3, 1.0 / 3}, Row{-7.0, 0.025},
          Row{0.0249, 0.025}, Row{0.9751, 0.975}, Row{INFINITY, 0.975}, Row{NAN, 0.975}}) {
        setReverseDoubleValue(&slider, value);
        EXPECT_EQ(slider.doubleValue(), -held);
        EXPECT_EQ(reverseDoubleValue(&slider), held) << "no step of the knob shows in it";
    }
    slider.setReversed(true);
    setReverseDoubleValue(&slider, 0.5);
    press(&slider, Qt::Key_Right);
    EXPECT_GT(reverseDoubleValue(&slider), 0.5) << "on the right it is later";
}
