// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// The platform on which a program can place its windows: X11, under Wayland by XWayland, because Wayland
/// itself lets nobody but the compositor place windows; see also LayerShell and SwayPlacement. And what Qt
/// does not tell the desktop there.
namespace WindowPlatform {

/// Has the application object, which is made after this, use the platform on which windows can be placed.
/// What the user or the system chose (`QT_QPA_PLATFORM`) stays, and programs that are started from here don't
/// inherit the choice.
void choosePlatform();

/// Tells the desktop on X11 that the start, the click or the call that came last has had its effect, whether
/// a window showed or not; the desktop shows the pointer as busy until it hears so.
void finishStartup();

/// Keeps a window out of task lists and pagers on X11. Window managers forget it when the window hides, so it
/// is for each `showEvent`.
void leaveTaskList(const QWidget* window);

} // namespace WindowPlatform
