// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// The applications that the user chose for each kind of address, and opening with them. Backed by GIO: the
/// desktop entries in the XDG data folders, and the mimeapps.list files that desktops keep.
namespace DefaultApplications {

/// The desktop entry of the application for addresses of `scheme` ("http"). Where GIO knows of none that can
/// be started, the one that the user's lists name all the same: its entry's path, or an empty one when it has
/// no entry any more. Nothing when none is named.
std::optional<QString> forScheme(const QString& scheme);

/// Whether an application can be started: its desktop entry is readable and its program (`TryExec`, `Exec`)
/// is found and executable. A bare executable file counts too, a folder doesn't.
bool isExecutable(const QString& path);

enum class Outcome {
    Opened,
    NotAnAddress,  ///< the address has no scheme or is none
    FileNotFound,  ///< the local file, or the application's, is not there
    NotExecutable, ///< the application can't be started
    NoApplication, ///< the desktop has none for the address
    StartFailed,   ///< logged
};

/// Opens an address with the application of a desktop entry or executable at `application`, by default with
/// the one that the desktop has for it, and doesn't wait for what was started.
Outcome open(const QUrl& address, const QString& application = {});

/// Opens an address by the application for its scheme, else by the desktop's own `xdg-open` where that is
/// installed. An address without a scheme is taken for one of `http`.
Outcome openTheSystemsWay(const QString& address);

} // namespace DefaultApplications
