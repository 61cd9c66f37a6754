// SPDX-License-Identifier: MIT
#include "platform/appkit/NSSlider.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace {
constexpr int kSteps = 10000;
}

NSSlider::NSSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setRange(0, kSteps);
    setSingleStep(kSteps / 200);
    setPageStep(kSteps / 20);
    connect(this, &QSlider::valueChanged, this, &NSSlider::knobMoved);
}

void NSSlider::setMinValue(double minimum) {
    minimum_ = minimum;
    setDoubleValue(value_);
}

void NSSlider::setMaxValue(double maximum) {
    maximum_ = maximum;
    setDoubleValue(value_);
}

void NSSlider::setReversed(bool reversed) {
    reversed_ = reversed;
    placeKnob();
}

void NSSlider::setDoubleValue(double value) {
    value_ = std::isnan(value) ? minimum_ : std::clamp(value, std::min(minimum_, maximum_), maximum_);
    placeKnob();
}

void NSSlider::placeKnob() {
    const double span = maximum_ - minimum_;
    const QSignalBlocker quiet(this);
    const int step = span > 0 ? static_cast<int>(std::lround((value_ - minimum_) / span * kSteps)) : 0;
    setValue(reversed_ ? kSteps - step : step);
}

void NSSlider::knobMoved(int step) {
    value_ = minimum_ + (maximum_ - minimum_) * (reversed_ ? kSteps - step : step) / kSteps;
    Q_EMIT doubleValueChanged(value_);
}
