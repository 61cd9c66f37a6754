// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>

/// A slider with a value in double precision. QSlider's whole steps only place the knob: a value that was set
/// comes back exactly, until the user moves the knob. Assistive programs hear the knob's place in percent,
/// and what the value means where an `accessibleDescription` tells that.
class Slider : public QSlider {
    Q_OBJECT
    Q_PROPERTY(double minValue READ minValue WRITE setMinValue)
    Q_PROPERTY(double maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(bool reversed READ isReversed WRITE setReversed)
    Q_PROPERTY(double doubleValue READ doubleValue WRITE setDoubleValue)

public:
    explicit Slider(QWidget* parent = nullptr);

    double minValue() const { return minimum_; }
    double maxValue() const { return maximum_; }
    void setMinValue(double minimum);
    void setMaxValue(double maximum);

    /// Whether the largest value lies at the leading end, where a slider has its smallest.
    bool isReversed() const { return reversed_; }
    void setReversed(bool reversed);

    double doubleValue() const { return value_; }

    /// Sets the value, held within the range; does not emit `doubleValueChanged`.
    void setDoubleValue(double value);

Q_SIGNALS:
    /// The user moved the knob.
    void doubleValueChanged(double value);

private:
    void placeKnob();
    void knobMoved(int step);

    double minimum_ = 0.0;
    double maximum_ = 1.0;
    double value_ = 0.0;
    bool reversed_ = false;
};
