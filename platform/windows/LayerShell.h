// SPDX-License-Identifier: MIT
#pragma once

class QRect;
class QScreen;
class QWidget;

/// Windows at a place of their own under Wayland, as bars have them: layer surfaces, which stand at an edge
/// of the screen. Plasma and the compositors that are made like Sway have them, GNOME's has not; nor has a
/// build without their library.
class LayerShell {
public:
#ifdef LUMIVANE_LAYER_SHELL
    /// Whether the compositor that `WAYLAND_DISPLAY` names has them; it is asked once. Not under Sway, whose
    /// bars tell a click's place in their own coordinates: SwayPlacement finds it. Needs no application
    /// object.
    static bool isOffered();

    /// Whether the program's windows can be layer surfaces.
    static bool isUsed();

    /// Makes a window that is not shown yet a layer surface above ordinary windows, which takes the keyboard
    /// like these, or moves one: to `frame` on `screen`, held at the corner that is nearest to `from`. If
    /// that leaves a bar's room above or below it, the compositor has it touch the bar instead. Only where
    /// `isUsed`.
    static void place(QWidget* window, const QRect& frame, const QRect& from, QScreen* screen);

    /// Makes a window that is not shown yet an unseen layer surface over the screen, which gets keyboard and
    /// pointer for as long as it shows: a compositor takes a copy from nobody but who had input last. Only
    /// where `isUsed`.
    static void takeInput(QWidget* window);

    /// Makes a dialog of a layer surface one too, in front of it: ordinary windows are behind. Others stay.
    static void placeOver(QWidget* sheet, const QWidget* window);
#else
    static bool isOffered() {
        return false;
    }
    static bool isUsed() {
        return false;
    }
    static void place(QWidget*, const QRect&, const QRect&, QScreen*) {
    }
    static void takeInput(QWidget*) {
    }
    static void placeOver(QWidget*, const QWidget*) {
    }
#endif
};
