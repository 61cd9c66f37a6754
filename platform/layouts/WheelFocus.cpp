// SPDX-License-Identifier: MIT
#include "platform/layouts/WheelFocus.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>

namespace {

class WheelFilter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
            return false;
        event->ignore(); // goes on to what the control lies in
        return true;
    }
};

} // namespace

void actOnWheelOnlyWithFocus(QObject* control) {
    const bool slider = qobject_cast<QAbstractSlider*>(control) && !qobject_cast<QScrollBar*>(control);
    if (!slider && !qobject_cast<QComboBox*>(control) && !qobject_cast<QAbstractSpinBox*>(control))
        return;
    auto* widget = static_cast<QWidget*>(control);
    if (widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(new WheelFilter(widget));
}
