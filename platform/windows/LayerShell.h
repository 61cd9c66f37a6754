// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

#include <functional>
#include <optional>

class QObject;
class QRect;
class QScreen;
class QSize;
class QWidget;

/// Windows at a place of their own under Wayland, as bars have them: layer surfaces, which stand at an edge
/// of the screen. Plasma and the compositors that are made like Sway have them, GNOME's has not; nor has a
/// build without their library.
namespace LayerShell {

/// Whether the compositor that `WAYLAND_DISPLAY` names has them; it is asked once. Needs no application
/// object.
bool isOffered();

/// Whether the program's windows can be layer surfaces.
bool isUsed();

/// Finds out what Wayland tells only those whose windows fill a screen: what bars leave of each screen
/// (`visibleFrame`) and where the pointer is. Gives `done` the place of a click on a bar, within a fraction
/// of a second: the pointer's if that is on a bar, else the one that was `told`. A second click that finds
/// the pointer unmoved may come by `clickedAgain`, as long as there is `owner`. Only where `isUsed`.
void lookAround(QObject* owner, std::optional<QPoint> told,
                const std::function<void(std::optional<QPoint> click)>& done,
                const std::function<void()>& clickedAgain);

/// What bars left of the screen when that was last found out; else the whole of it.
QRect visibleFrame(const QScreen* screen);

/// Where on `screen` the part lies that bars leave, of which Wayland tells the size alone: beside the bar
/// that the click at `click` was on.
QRect freePart(const QRect& screen, const QSize& size, const QPoint& click);

/// Makes a window that is not shown yet a layer surface above ordinary windows, which takes the keyboard
/// like these, or moves one: to `frame` on `screen`, held at the corner that is nearest to `from`. Only
/// where `isUsed`.
void place(QWidget* window, const QRect& frame, const QRect& from, QScreen* screen);

/// Shows a window as an unseen layer surface over the screen in use, which gets keyboard and pointer for as
/// long as it shows: a compositor takes a copy from nobody but who had input last. Only where `isUsed`.
void takeInput(QWidget* window);

/// Makes a dialog of a layer surface one too, in front of it: ordinary windows are behind. Others stay.
void placeOver(QWidget* sheet, const QWidget* window);

} // namespace LayerShell
