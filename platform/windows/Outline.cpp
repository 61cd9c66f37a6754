// SPDX-License-Identifier: MIT
#include "platform/windows/Outline.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

Outline::Outline(QWidget* window) : QObject(window) {
    window->installEventFilter(this);
}

bool Outline::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        auto* const window = static_cast<QWidget*>(watched);
        QColor line = window->palette().color(QPalette::WindowText);
        line.setAlphaF(0.25F);
        QPainter painter(window);
        // A drawn outline would not lie on the edge where a point is several pixels.
        const QRect whole = window->rect();
        for (const QRect& side : QRegion(whole) - whole.adjusted(1, 1, -1, -1))
            painter.fillRect(side, line);
    }
    return false;
}
