// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QTimer>

#include <functional>
#include <optional>

class QWidget;

/// Puts a floating window to its place under Sway, which shows them in the middle of the screen whatever they
/// ask for, but moves them on a message to its socket. The pointer's place is asked for in the same way,
/// because Wayland doesn't tell it and some bars tell a click's place in their own coordinates.
class SwayPlacement : public QObject {
    Q_OBJECT

public:
    /// What is known of the place, in Sway's coordinates.
    struct Surroundings {
        QPoint pointer; ///< When the window came up. Nearer to a screen's edge than half the window: on the
                        ///< edge.
        QRect screen;
        QRect available; ///< The screen without its bars.
        qreal scale = 1; ///< Sway's units in one of the window's.
    };
    /// The place for the window's upper left corner.
    using Chooser = std::function<QPoint(const Surroundings&)>;

    /// Whether Sway runs the session.
    static bool isThere();

    /// `window`, which is not shown yet, becomes the owner.
    SwayPlacement(QWidget* window, Chooser chooser);

    /// Places the window: as soon as it shows, and at once when it does. Without an answer from Sway it stays
    /// where Sway puts it, which is logged.
    void place();

private:
    void findWindow();
    void move();
    bool run(const QString& command);
    void giveUp(const QString& reason);

    QWidget* const window_;
    const Chooser chooser_;
    QTimer search_; ///< Runs until the window has come up.
    int looks_ = 0;
    qint64 identifier_ = 0; ///< Sway's number of the window.
    std::optional<Surroundings> surroundings_;
};
