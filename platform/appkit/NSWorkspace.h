// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Stands for the workspace's knowledge of the installed applications. Backed by the desktop entries in the
/// XDG data folders, through GIO; an application's path is that of its desktop entry.
namespace NSWorkspace {

/// The path of the application of a name, or an empty string. A name is a desktop identifier (with or without
/// ".desktop"), what `nameForApplication` gave, or the name that users see, in their language or as the entry
/// was written. An entry whose program is gone is still found by its identifier.
QString fullPathForApplication(const QString& name);

/// A name of at most 63 Mac Roman bytes that `fullPathForApplication` takes for the application of a desktop
/// identifier: the identifier itself, or, where that doesn't fit, a digest of it. Names that users see would
/// neither fit always nor be unique.
QString nameForApplication(const QString& desktopIdentifier);

/// Whether an application can be started: its desktop entry is readable and its program (`TryExec`, `Exec`)
/// is found and executable. A bare executable file counts too, a folder doesn't: there are no bundles here.
bool isExecutableApplication(const QString& path);

} // namespace NSWorkspace
