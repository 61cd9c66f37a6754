// SPDX-License-Identifier: MIT
#include "platform/carbon/InternetConfigManager.h"

#include "platform/appkit/NSWorkspace.h"
#include "platform/carbon/GioApplication.h"
#include "platform/carbon/LaunchServices.h"

#include <QStandardPaths>

#include <algorithm>

struct ICSession {
    OSType signature;
};

namespace {

QString textOf(const Str255& pascalString) {
    return NSStringEncoding::stringWithBytes(QByteArrayView(pascalString.data() + 1, pascalString[0]),
                                             kCFStringEncodingMacRoman);
}

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

QString identifierForScheme(const QString& scheme) {
    const QStringList types = contentTypes(scheme);
    for (const QString& type : types) {
        if (const auto application = GioApplication::forContentType(type))
            return QString::fromUtf8(g_app_info_get_id(reinterpret_cast<GAppInfo*>(application.get())));
    }
    for (const QString& type : types) {
        if (const QString named = identifierInLists(type); !named.isEmpty())
            return named;
    }
    return {};
}

} // namespace

OSStatus ICStart(ICInstance* instance, OSType signature) {
    if (!instance)
        return paramErr;
    *instance = new ICSession{signature};
    return noErr;
}

OSStatus ICStop(ICInstance instance) {
    delete instance;
    return instance ? noErr : paramErr;
}

OSStatus ICGetPref(ICInstance instance, const Str255& key, ICAppSpec* value) {
    if (!instance || !value)
        return paramErr;
    const QString helper = QStringLiteral("Helper\u2022");
    const QString name = textOf(key);
    if (!name.startsWith(helper) || name == helper)
        return icPrefNotFoundErr;
    const QString identifier = identifierForScheme(name.mid(helper.size()).toLower());
    if (identifier.isEmpty())
        return icPrefNotFoundErr;
    const auto bytes = NSStringEncoding::bytesOfString(NSWorkspace::nameForApplication(identifier),
                                                       kCFStringEncodingMacRoman);
    *value = {fourCharCode("\?\?\?\?"), {}};
    value->name[0] = static_cast<std::uint8_t>(bytes->size());
    std::ranges::copy(*bytes, value->name.begin() + 1);
    return noErr;
}

OSStatus ICLaunchURL(ICInstance instance, const Str255& hint, QByteArrayView text,
                     std::int32_t selectionStart, std::int32_t selectionEnd) {
    if (!instance || selectionStart < 0 || selectionEnd < selectionStart || selectionEnd > text.size())
        return paramErr;
    QString address = QString::fromUtf8(text.sliced(selectionStart, selectionEnd - selectionStart));
    if (QUrl(address, QUrl::StrictMode).scheme().isEmpty())
        address.prepend(textOf(hint) + QStringLiteral("://"));
    LSLaunchURLSpec spec{QUrl(), {QUrl(address, QUrl::StrictMode)}};
    const OSStatus status = LSOpenFromURLSpec(spec);
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (status != kLSApplicationNotFoundErr || opener.isEmpty())
        return status;
    spec.appURL = QUrl::fromLocalFile(opener);
    return LSOpenFromURLSpec(spec);
}
