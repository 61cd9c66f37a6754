// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

/// Runs the event loop until `condition` holds; false when it does not within `milliseconds`.
template <typename Condition>
bool waitFor(Condition condition, int milliseconds = 10000) {
    const QDeadlineTimer deadline(milliseconds);
    QTimer tick; // what happens in another process sends no event
    tick.start(10);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

/// Runs the event loop for as long as a thing that must not happen is given time to happen.
inline void letPass(int milliseconds) {
    waitFor([] { return false; }, milliseconds);
}

/// Presses and releases a key in a widget, which may go with it.
inline void press(QPointer<QWidget> widget, int key, const QString& text = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (widget)
            QApplication::sendEvent(widget, &event);
    }
}

/// Deletes what asked to be deleted later.
inline void deletePending() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Shows a window that takes the keyboard.
inline void showActive(QWidget* window) {
    window->show();
    window->activateWindow();
    QApplication::processEvents();
}

/// The windows of a kind that are on the screen.
template <typename T>
QList<T*> shownWindows() {
    QList<T*> shown;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<T*>(widget); window && window->isVisible())
            shown.append(window);
    }
    return shown;
}
