// SPDX-License-Identifier: MIT
#pragma once

class Slider;

/// Values of a slider whose direction runs against their meaning: the reverse value is the negated value.
namespace ExtraSliderUtilities {

void setReverseDoubleValue(Slider* slider, double value);
double reverseDoubleValue(const Slider* slider);

/// The largest reverse value, at the slider's minimum end.
void setReverseMaxValue(Slider* slider, double value);
double reverseMaxValue(const Slider* slider);

/// The smallest reverse value, at the slider's maximum end.
void setReverseMinValue(Slider* slider, double value);
double reverseMinValue(const Slider* slider);

} // namespace ExtraSliderUtilities
