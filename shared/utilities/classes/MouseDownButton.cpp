// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/MouseDownButton.h"

#include <QMouseEvent>

void MouseDownButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && isEnabled())
        click();
}
