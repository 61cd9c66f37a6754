// SPDX-License-Identifier: MIT
#pragma once

/// The platform on which a program can place its windows: X11, under Wayland by XWayland, because Wayland
/// itself lets nobody but the compositor place windows; see also SwayPlacement.
namespace WindowPlatform {

/// Has the application object, which is made after this, use the platform on which windows can be placed.
/// What the user or the system chose (`QT_QPA_PLATFORM`) stays, and programs that are started from here don't
/// inherit the choice.
void choosePlatform();

} // namespace WindowPlatform
