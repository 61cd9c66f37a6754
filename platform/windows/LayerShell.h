// SPDX-License-Identifier: MIT
#pragma once

class QRect;
class QScreen;
class QWidget;

/// Windows at a place of their own under Wayland, as bars have them: layer surfaces, which stand at an edge
/// of the screen. Plasma and the compositors that are made like Sway have them, GNOME's has not; nor has a
/// build without their library.
namespace LayerShell {

/// Whether the compositor that `WAYLAND_DISPLAY` names has them; it is asked once. Not under Sway, whose bars
/// tell a click's place in their own coordinates: SwayPlacement finds it. Needs no application object.
bool isOffered();

/// Whether the program's windows can be layer surfaces.
bool isUsed();

/// Makes a window that is not shown yet a layer surface above ordinary windows, which takes the keyboard
/// like these, or moves one: to `frame` on `screen`, held at the corner that is nearest to `from`. If that
/// leaves a bar's room above or below it, the compositor has it touch the bar instead. Only where `isUsed`.
void place(QWidget* window, const QRect& frame, const QRect& from, QScreen* screen);

/// Makes a window that is not shown yet an unseen layer surface over the screen, which gets keyboard and
/// pointer for as long as it shows: a compositor takes a copy from nobody but who had input last. Only where
/// `isUsed`.
void takeInput(QWidget* window);

/// Makes a dialog of a layer surface one too, in front of it: ordinary windows are behind. Others stay.
void placeOver(QWidget* sheet, const QWidget* window);

} // namespace LayerShell
