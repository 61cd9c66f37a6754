// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraSliderUtilities.h"

#include "platform/layouts/Slider.h"

void ExtraSliderUtilities::setReverseDoubleValue(Slider* slider, double value) {
    slider->setDoubleValue(-value);
}

double ExtraSliderUtilities::reverseDoubleValue(const Slider* slider) {
    return -slider->doubleValue();
}

void ExtraSliderUtilities::setReverseMaxValue(Slider* slider, double value) {
    slider->setMinValue(-value);
}

double ExtraSliderUtilities::reverseMaxValue(const Slider* slider) {
    return -slider->minValue();
}

void ExtraSliderUtilities::setReverseMinValue(Slider* slider, double value) {
    slider->setMaxValue(-value);
}

double ExtraSliderUtilities::reverseMinValue(const Slider* slider) {
    return -slider->maxValue();
}
