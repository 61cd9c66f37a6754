// SPDX-License-Identifier: MIT
#pragma once

#include <QMargins>
#include <QtPlugin>

class QWindow;

/// What the program asks of the library for layer surfaces. It comes in a plug-in, so that only a session
/// that has such surfaces loads that library and Qt's for Wayland.
class LayerSurfaces {
public:
    enum class Keyboard {
        None,
        OnDemand, ///< Like ordinary windows.
        Exclusive ///< At once, for as long as the surface shows.
    };
    struct Placement {
        /// The screen's edges that the surface is held at; between two opposite ones it fills the screen.
        Qt::Edges edges;
        QMargins margins; ///< From those edges, or from the bars at them.
        bool overBars = false;
        bool onActiveScreen = false; ///< As the compositor sees it, not on the window's.
        Keyboard keyboard = Keyboard::OnDemand;
    };

    LayerSurfaces() = default;
    LayerSurfaces(const LayerSurfaces&) = delete;
    LayerSurfaces& operator=(const LayerSurfaces&) = delete;
    virtual ~LayerSurfaces() = default;

    /// Whether the compositor that `WAYLAND_DISPLAY` names has layer surfaces. Needs no application object.
    virtual bool areOffered() = 0;

    /// Makes a window that is not shown yet such a surface, on the window's screen, or moves one.
    virtual void place(QWindow* window, const Placement& placement) = 0;
};

#define LUMIVANE_LAYER_SURFACES "com.corvanta.Lumivane.LayerSurfaces"
Q_DECLARE_INTERFACE(LayerSurfaces, LUMIVANE_LAYER_SURFACES)
