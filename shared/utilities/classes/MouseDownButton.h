// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

/// A button that fires as soon as it is pressed, without following the mouse until it is released.
class MouseDownButton : public QToolButton {
    Q_OBJECT

public:
    using QToolButton::QToolButton;

protected:
    void mousePressEvent(QMouseEvent* event) override;
};
