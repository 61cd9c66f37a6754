// SPDX-License-Identifier: MIT
#include "platform/browser/DefaultApplications.h"

#include "platform/browser/GioApplication.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace {

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
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)> file(g_key_file_new(), g_key_file_unref);
    const QStringList lists = listsOfDefaults();
    for (const QString& list : lists) {
        if (!g_key_file_load_from_file(file.get(), list.toLocal8Bit().constData(), G_KEY_FILE_NONE, nullptr))
            continue;
        const std::unique_ptr<char*, decltype(&g_strfreev)> identifiers(
            g_key_file_get_string_list(file.get(), "Default Applications", contentType.toUtf8().constData(),
                                       nullptr, nullptr),
            g_strfreev);
        if (identifiers && *identifiers)
            return QString::fromUtf8(*identifiers);
    }
    return {};
}

} // namespace

std::optional<QString> DefaultApplications::forScheme(const QString& scheme) {
    const QStringList types = contentTypes(scheme);
    for (const QString& type : types) {
        if (const auto application = GioApplication::forContentType(type))
            return QString::fromLocal8Bit(g_desktop_app_info_get_filename(application.get()));
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
    return GioApplication::atPath(path) != nullptr;
}

Outcome DefaultApplications::open(const QUrl& address, const QString& application) {
    // An address without a scheme could begin with a hyphen, and a program would take it for an option.
    if (!address.isValid() || address.scheme().isEmpty())
        return Outcome::NotAnAddress;
    if ((address.isLocalFile() && !QFileInfo::exists(address.toLocalFile())) ||
        (!application.isEmpty() && !QFileInfo::exists(application)))
        return Outcome::FileNotFound;
    GioApplication::Application opener;
    if (!application.isEmpty())
        opener = GioApplication::atPath(application);
    else if (address.isLocalFile())
        opener = GioApplication::forFile(address.toLocalFile());
    else
        opener = GioApplication::forContentType(QStringLiteral("x-scheme-handler/") + address.scheme());
    if (!opener)
        return application.isEmpty() ? Outcome::NoApplication : Outcome::NotExecutable;
    return GioApplication::launch(opener.get(), address) ? Outcome::Opened : Outcome::StartFailed;
}

Outcome DefaultApplications::openTheSystemsWay(const QString& address) {
    QUrl url(address, QUrl::StrictMode);
    if (url.scheme().isEmpty())
        url = QUrl(QStringLiteral("http://") + address, QUrl::StrictMode);
    const Outcome outcome = open(url);
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    return outcome == Outcome::NoApplication && !opener.isEmpty() ? open(url, opener) : outcome;
}
