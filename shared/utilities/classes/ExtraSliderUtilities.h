// SPDX-License-Identifier: MIT
#pragma once

class NSSlider;

/// Values of a slider whose direction runs against their meaning: the reverse value is the negated value.
namespace ExtraSliderUtilities {

void setReverseDoubleValue(NSSlider* slider, double value);
double reverseDoubleValue(const NSSlider* slider);

/// The largest reverse value, at the slider's minimum end.
void setReverseMaxValue(NSSlider* slider, double value);
double reverseMaxValue(const NSSlider* slider);

/// The smallest reverse value, at the slider's maximum end.
void setReverseMinValue(NSSlider* slider, double value);
double reverseMinValue(const NSSlider* slider);

} // namespace ExtraSliderUtilities
