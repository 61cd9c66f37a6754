// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

/// Sets a window without a frame off from what lies behind it, be it of the same colour: a thin line along
/// its edges.
class Outline : public QObject {
public:
    /// `window` becomes the owner.
    explicit Outline(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
