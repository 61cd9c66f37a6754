// SPDX-License-Identifier: MIT
#include "platform/appkit/NSWorkspace.h"

#include "platform/carbon/GioApplication.h"
#include "platform/foundation/NSStringEncoding.h"

#include <QCryptographicHash>
#include <QStandardPaths>

#include <array>
#include <functional>

namespace {

constexpr qsizetype kLongestName = 63;
const QString kSuffix = QStringLiteral(".desktop");

QString digestName(const QString& identifier) {
    return QStringLiteral("application ") +
           QString::fromLatin1(
               QCryptographicHash::hash(identifier.toUtf8(), QCryptographicHash::Sha1).toHex());
}

QString pathOf(GDesktopAppInfo* application) {
    return QString::fromLocal8Bit(g_desktop_app_info_get_filename(application));
}

QString pathForIdentifier(const QString& identifier) {
    if (identifier.contains(QLatin1Char('/')))
        return {};
    if (const auto application = GioApplication::withIdentifier(identifier))
        return pathOf(application.get());
    return QStandardPaths::locate(QStandardPaths::ApplicationsLocation, identifier);
}

QString pathOfFirst(const std::function<bool(GAppInfo*)>& fits) {
    GList* const all = g_app_info_get_all();
    QString path;
    for (const GList* item = all; item && path.isEmpty(); item = item->next) {
        if (G_IS_DESKTOP_APP_INFO(item->data) && fits(static_cast<GAppInfo*>(item->data)))
            path = pathOf(static_cast<GDesktopAppInfo*>(item->data));
    }
    g_list_free_full(all, g_object_unref);
    return path;
}

bool isCalled(GAppInfo* application, const QString& name) {
    if (name == digestName(QString::fromUtf8(g_app_info_get_id(application))) ||
        name == QString::fromUtf8(g_app_info_get_name(application)))
        return true;
    char* const asWritten =
        g_desktop_app_info_get_string(reinterpret_cast<GDesktopAppInfo*>(application), "Name");
    const bool fits = name == QString::fromUtf8(asWritten);
    g_free(asWritten);
    return fits;
}

} // namespace

QString NSWorkspace::fullPathForApplication(const QString& name) {
    if (name.isEmpty())
        return {};
    const QString path = pathForIdentifier(name.endsWith(kSuffix) ? name : name + kSuffix);
    return path.isEmpty() ? pathOfFirst([&](GAppInfo* application) { return isCalled(application, name); })
                          : path;
}

QString NSWorkspace::nameForApplication(const QString& desktopIdentifier) {
    const auto bytes = NSStringEncoding::bytesOfString(desktopIdentifier, kCFStringEncodingMacRoman);
    return bytes && bytes->size() <= kLongestName ? desktopIdentifier : digestName(desktopIdentifier);
}

bool NSWorkspace::isExecutableApplication(const QString& path) {
    return GioApplication::atPath(path) != nullptr;
}
