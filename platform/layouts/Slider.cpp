// SPDX-License-Identifier: MIT
#include "platform/layouts/Slider.h"

#include <QAccessibleWidget>
#include <QLocale>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSteps = 10000;
constexpr double kStepsInPercent = kSteps / 100.0;

/// Tells where the knob is in percent; the steps mean nothing to anybody.
class AccessibleSlider : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleSlider(Slider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider), slider_(slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override {
        const bool meaning = kind == QAccessible::Value || kind == QAccessible::Description;
        if (!meaning)
            return QAccessibleWidget::text(kind);
        const QString described = slider_->accessibleDescription();
        const QLocale locale;
        return described.isEmpty() ? locale.toString(qRound(currentValue().toDouble())) + locale.percent()
                                   : described;
    }

    QVariant currentValue() const override { return slider_->value() / kStepsInPercent; }
    void setCurrentValue(const QVariant& percent) override {
        slider_->setValue(qRound(percent.toDouble() * kStepsInPercent));
    }
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return 100.0; }
    QVariant minimumStepSize() const override { return slider_->singleStep() / kStepsInPercent; }

private:
    Slider* const slider_;
};

QAccessibleInterface* accessibleFor(const QString& className, QObject* object) {
    auto* slider = className == u"Slider" ? qobject_cast<Slider*>(object) : nullptr;
    return slider ? new AccessibleSlider(slider) : nullptr;
}

} // namespace

Slider::Slider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    QAccessible::installFactory(accessibleFor);
    setRange(0, kSteps);
    setSingleStep(kSteps / 200);
    setPageStep(kSteps / 20);
    connect(this, &QSlider::valueChanged, this, &Slider::knobMoved);
}

void Slider::setMinValue(double minimum) {
    minimum_ = minimum;
    setDoubleValue(value_);
}

void Slider::setMaxValue(double maximum) {
    maximum_ = maximum;
    setDoubleValue(value_);
}

void Slider::setReversed(bool reversed) {
    reversed_ = reversed;
    placeKnob();
}

void Slider::setDoubleValue(double value) {
    value_ = std::isnan(value) ? minimum_ : std::clamp(value, std::min(minimum_, maximum_), maximum_);
    placeKnob();
}

void Slider::placeKnob() {
    const double span = maximum_ - minimum_;
    const QSignalBlocker quiet(this);
    const int step = span > 0 ? static_cast<int>(std::lround((value_ - minimum_) / span * kSteps)) : 0;
    setValue(reversed_ ? kSteps - step : step);
}

void Slider::knobMoved(int step) {
    value_ = minimum_ + (maximum_ - minimum_) * (reversed_ ? kSteps - step : step) / kSteps;
    Q_EMIT doubleValueChanged(value_);
}
