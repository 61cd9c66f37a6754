// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraSliderUtilities.h"

#include "platform/appkit/NSSlider.h"

void ExtraSliderUtilities::setReverseDoubleValue(NSSlider* slider, double value) {
    slider->setDoubleValue(-value);
}

double ExtraSliderUtilities::reverseDoubleValue(const NSSlider* slider) {
    return -slider->doubleValue();
}

void ExtraSliderUtilities::setReverseMaxValue(NSSlider* slider, double value) {
    slider->setMinValue(-value);
}

double ExtraSliderUtilities::reverseMaxValue(const NSSlider* slider) {
    return -slider->minValue();
}

void ExtraSliderUtilities::setReverseMinValue(NSSlider* slider, double value) {
    slider->setMaxValue(-value);
}

double ExtraSliderUtilities::reverseMinValue(const NSSlider* slider) {
    return -slider->maxValue();
}
