// SPDX-License-Identifier: MIT
#include "platform/browser/DefaultApplications.h"

#include "platform/log/Log.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QSysInfo>

#include <gio/gdesktopappinfo.h>
#include <unistd.h>

namespace {

// An application that a function gives is the caller's to release. On this system each is a desktop entry's.

/// A bare executable, put as the command line of a desktop entry: there a per cent sign starts a field.
GDesktopAppInfo* fromExecutable(const QString& path) {
    g_autofree char* quoted = g_shell_quote(path.toLocal8Bit().constData());
    const QByteArray command = QByteArray(quoted).replace('%', "%%");
    const QByteArray name = QFileInfo(path).fileName().toUtf8();
    return G_DESKTOP_APP_INFO(g_app_info_create_from_commandline(command.constData(), name.constData(),
                                                                 G_APP_INFO_CREATE_SUPPORTS_URIS, nullptr));
}

/// An AppImage puts folders of its own into search paths; they are gone with it, and hold its libraries, not
/// those of the program that is started.
void leaveOutPackaging(GAppLaunchContext* context) {
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    const QString folder = own.value(QStringLiteral("APPDIR"));
    if (folder.isEmpty())
        return;
    const QStringList names = own.keys();
    for (const QString& name : names) {
        const QString value = own.value(name);
        if (!value.contains(folder))
            continue;
        QStringList parts = value.split(QLatin1Char(':'));
        parts.removeIf([&](const QString& part) {
            return part == folder || part.startsWith(folder + QLatin1Char('/'));
        });
        if (parts.join(QString()).isEmpty())
            g_app_launch_context_unsetenv(context, name.toLocal8Bit().constData());
        else
            g_app_launch_context_setenv(context, name.toLocal8Bit().constData(),
                                        parts.join(QLatin1Char(':')).toLocal8Bit().constData());
    }
    for (const char* name : {"APPDIR", "APPIMAGE", "ARGV0", "OWD"})
        g_app_launch_context_unsetenv(context, name);
}

/// Under X11 the window manager lets a new window come to the front by the time in this identifier. A local
/// server counts the milliseconds of the monotonic clock; Wayland's tokens need a protocol that Qt 6.4 keeps
/// to itself.
QByteArray startupIdentifier() {
    if (QGuiApplication::platformName() != u"xcb" || !qgetenv("DISPLAY").startsWith(':'))
        return {};
    static int number = 0;
    return QStringLiteral("%1-%2-%3-%4_TIME%5")
        .arg(QCoreApplication::applicationName(), QString::number(getpid()), QSysInfo::machineHostName(),
             QString::number(++number),
             QString::number(static_cast<std::uint32_t>(g_get_monotonic_time() / 1000)))
        .toLocal8Bit();
}

GAppLaunchContext* launchContext(GDesktopAppInfo* application) {
    GAppLaunchContext* const context = g_app_launch_context_new();
    for (const char* ours : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN", "GIO_LAUNCHED_DESKTOP_FILE",
                             "GIO_LAUNCHED_DESKTOP_FILE_PID"})
        g_app_launch_context_unsetenv(context, ours);
    leaveOutPackaging(context);
    const QByteArray identifier = startupIdentifier();
    if (!identifier.isEmpty() && g_desktop_app_info_get_boolean(application, "StartupNotify"))
        g_app_launch_context_setenv(context, "DESKTOP_STARTUP_ID", identifier.constData());
    return context;
}

/// The application that a desktop entry or a bare executable stands for; nothing when the file is gone, is
/// neither, or its program can't be found or run.
GDesktopAppInfo* applicationAt(const QString& path) {
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isFile() || !file.isReadable())
        return nullptr;
    if (file.suffix() == u"desktop") {
        g_autoptr(GDesktopAppInfo) entry =
            g_desktop_app_info_new_from_filename(path.toLocal8Bit().constData());
        return entry && !g_desktop_app_info_get_is_hidden(entry) ? g_steal_pointer(&entry) : nullptr;
    }
    return file.isExecutable() ? fromExecutable(file.absoluteFilePath()) : nullptr;
}

GDesktopAppInfo* defaultForType(const QString& type) {
    return G_DESKTOP_APP_INFO(g_app_info_get_default_for_type(type.toUtf8().constData(), FALSE));
}

GDesktopAppInfo* defaultForFile(const QString& path) {
    g_autoptr(GFile) file = g_file_new_for_path(path.toLocal8Bit().constData());
    return G_DESKTOP_APP_INFO(g_file_query_default_handler(file, nullptr, nullptr));
}

/// Starts the application with one address and returns at once. What is started has a session of its own, no
/// part in this program's files, output or packaging, and outlives it. False, with a log line, on failure.
bool launch(GDesktopAppInfo* application, const QUrl& address) {
    QByteArray text = address.toEncoded();
    GList items{text.data(), nullptr, nullptr};
    g_autoptr(GError) error = nullptr;
    // Without a watched child GLib starts a grandchild: nothing is left behind here when it ends. A session
    // of its own keeps it from the signals of this program's terminal, and output into a pipe that closes
    // with this program would end it.
    constexpr auto kFlags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL |
                                                     G_SPAWN_STDERR_TO_DEV_NULL);
    g_autoptr(GAppLaunchContext) context = launchContext(application);
    const bool started = g_desktop_app_info_launch_uris_as_manager(
        application, &items, context, kFlags, [](gpointer) { setsid(); }, nullptr, nullptr, nullptr, &error);
    if (!started)
        logLine(QStringLiteral("%1 can't be opened: %2")
                    .arg(QString::fromUtf8(text), QString::fromUtf8(error ? error->message : "")));
    return started;
}

using DefaultApplications::Outcome;

/// No desktop lets the user choose an application for "file" as such: a local file that is shown by the
/// browser is a web page, so the application for web pages stands for it.
QStringList contentTypes(const QString& scheme) {
    QStringList types{QStringLiteral("x-scheme-handler/") + scheme};
    if (scheme == u"file")
        types.append(QStringLiteral("text/html"));
    return types;
}

/// Every list of defaults in its order of weight, those for the running desktop before the general one.
QStringList listsOfDefaults() {
    QStringList names;
    const QStringList desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower().split(QLatin1Char(':'));
    for (const QString& desktop : desktops) {
        if (!desktop.isEmpty() && !desktop.contains(QLatin1Char('/')))
            names.append(desktop + QStringLiteral("-mimeapps.list"));
    }
    names.append(QStringLiteral("mimeapps.list"));
    QStringList lists;
    for (const auto place : {QStandardPaths::GenericConfigLocation, QStandardPaths::ApplicationsLocation}) {
        for (const QString& name : names)
            lists.append(QStandardPaths::locateAll(place, name));
    }
    return lists;
}

/// GIO passes over an application whose program is gone, without a word; the user who chose it should hear.
QString identifierInLists(const QString& contentType) {
    g_autoptr(GKeyFile) file = g_key_file_new();
    const QStringList lists = listsOfDefaults();
    for (const QString& list : lists) {
        if (!g_key_file_load_from_file(file, list.toLocal8Bit().constData(), G_KEY_FILE_NONE, nullptr))
            continue;
        g_auto(GStrv) identifiers = g_key_file_get_string_list(
            file, "Default Applications", contentType.toUtf8().constData(), nullptr, nullptr);
        if (identifiers && *identifiers)
            return QString::fromUtf8(*identifiers);
    }
    return {};
}

} // namespace

std::optional<QString> DefaultApplications::forScheme(const QString& scheme) {
    const QStringList types = contentTypes(scheme);
    for (const QString& type : types) {
        g_autoptr(GDesktopAppInfo) application = defaultForType(type);
        if (application)
            return QString::fromLocal8Bit(g_desktop_app_info_get_filename(application));
    }
    for (const QString& type : types) {
        if (const QString named = identifierInLists(type); !named.isEmpty())
            return named.contains(QLatin1Char('/'))
                       ? QString()
                       : QStandardPaths::locate(QStandardPaths::ApplicationsLocation, named);
    }
    return std::nullopt;
}

bool DefaultApplications::isExecutable(const QString& path) {
    g_autoptr(GDesktopAppInfo) application = applicationAt(path);
    return application != nullptr;
}

Outcome DefaultApplications::open(const QUrl& address, const QString& application) {
    // An address without a scheme could begin with a hyphen, and a program would take it for an option.
    if (!address.isValid() || address.scheme().isEmpty())
        return Outcome::NotAnAddress;
    if ((address.isLocalFile() && !QFileInfo::exists(address.toLocalFile())) ||
        (!application.isEmpty() && !QFileInfo::exists(application)))
        return Outcome::FileNotFound;
    g_autoptr(GDesktopAppInfo) opener = nullptr;
    if (!application.isEmpty())
        opener = applicationAt(application);
    else if (address.isLocalFile())
        opener = defaultForFile(address.toLocalFile());
    else
        opener = defaultForType(QStringLiteral("x-scheme-handler/") + address.scheme());
    if (!opener)
        return application.isEmpty() ? Outcome::NoApplication : Outcome::NotExecutable;
    return launch(opener, address) ? Outcome::Opened : Outcome::StartFailed;
}

Outcome DefaultApplications::openTheSystemsWay(const QString& address) {
    QUrl url(address, QUrl::StrictMode);
    if (url.scheme().isEmpty())
        url = QUrl(QStringLiteral("http://") + address, QUrl::StrictMode);
    const Outcome outcome = open(url);
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    return outcome == Outcome::NoApplication && !opener.isEmpty() ? open(url, opener) : outcome;
}
