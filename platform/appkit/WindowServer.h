// SPDX-License-Identifier: MIT
#pragma once

/// Stands for the window server, which puts a window where its program says. Backed by X11, under Wayland by
/// XWayland, because Wayland itself lets nobody but the compositor place windows; see also SwayPlacement.
namespace WindowServer {

/// Has the application object, which is made after this, use the platform on which windows can be placed.
/// What the user or the system chose (`QT_QPA_PLATFORM`) stays, and programs that are started from here don't
/// inherit the choice.
void choosePlatform();

} // namespace WindowServer
