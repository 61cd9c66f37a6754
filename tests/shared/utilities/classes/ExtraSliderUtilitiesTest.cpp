// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraSliderUtilities.h"

#include "platform/layouts/Slider.h"
#include "tests/Interaction.h"

#include <gtest/gtest.h>

#include <cmath>

using ExtraSliderUtilities::reverseDoubleValue;
using ExtraSliderUtilities::reverseMaxValue;
using ExtraSliderUtilities::reverseMinValue;
using ExtraSliderUtilities::setReverseDoubleValue;
using ExtraSliderUtilities::setReverseMaxValue;
using ExtraSliderUtilities::setReverseMinValue;

namespace {

class ExtraSliderUtilitiesTest : public testing::Test {
protected:
    ExtraSliderUtilitiesTest() {
        setReverseMaxValue(&slider, static_cast<double>(0.975F));
        setReverseMinValue(&slider, static_cast<double>(0.025F));
    }

    Slider slider;
};

} // namespace

TEST_F(ExtraSliderUtilitiesTest, TheReverseValueIsTheNegatedOneInDoublePrecision) {
    EXPECT_EQ(slider.minValue(), -0.97500002384185791);
    EXPECT_EQ(slider.maxValue(), -0.02500000037252903);
    EXPECT_EQ(reverseMaxValue(&slider), -slider.minValue());
    EXPECT_EQ(reverseMinValue(&slider), -slider.maxValue());
    for (const double value : {1.0 / 3.0, 0.5, 0.1234567890123456}) {
        setReverseDoubleValue(&slider, value);
        EXPECT_EQ(slider.doubleValue(), -value);
        EXPECT_EQ(reverseDoubleValue(&slider), value) << "no step of the knob shows in it";
    }
}

TEST_F(ExtraSliderUtilitiesTest, ItIsHeldInItsRange) {
    for (const double value : {0.0, -7.0, 0.0249}) {
        setReverseDoubleValue(&slider, value);
        EXPECT_EQ(reverseDoubleValue(&slider), reverseMinValue(&slider));
    }
    for (const double value : {1.0, 0.9751, double{INFINITY}, double{NAN}}) {
        setReverseDoubleValue(&slider, value);
        EXPECT_EQ(reverseDoubleValue(&slider), reverseMaxValue(&slider)) << value;
    }
}

TEST_F(ExtraSliderUtilitiesTest, TheUsersKeysRunFromEndToEnd) {
    slider.setReversed(true);
    setReverseDoubleValue(&slider, 0.5);
    double before = 0.5;
    for (int i = 0; i < 3; ++i) {
        press(&slider, Qt::Key_Right);
        EXPECT_GT(reverseDoubleValue(&slider), before) << "on the right it is later";
        before = reverseDoubleValue(&slider);
    }
    press(&slider, Qt::Key_Home);
    EXPECT_EQ(reverseDoubleValue(&slider), reverseMinValue(&slider));
    press(&slider, Qt::Key_End);
    EXPECT_EQ(reverseDoubleValue(&slider), reverseMaxValue(&slider));
}
