// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

#include <gio/gdesktopappinfo.h>

#include <memory>

/// What this service needs of GIO; for its own use.
namespace GioApplication {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using Application = std::unique_ptr<GDesktopAppInfo, Unref>;

/// The application that a desktop entry or a bare executable stands for; nothing when the file is gone, is
/// neither, or its program can't be found or run.
Application atPath(const QString& path);

/// The desktop's default for a content type ("text/html", "x-scheme-handler/http"), or nothing.
Application forContentType(const QString& type);

/// The desktop's default for a file, by its kind, or nothing.
Application forFile(const QString& path);

/// Starts the application with one address and returns at once. What is started has a session of its own, no
/// part in this program's files, output or packaging, and outlives it. False, with a log line, on failure.
bool launch(GDesktopAppInfo* application, const QUrl& address);

} // namespace GioApplication
