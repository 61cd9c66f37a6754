// SPDX-License-Identifier: MIT
#include "platform/carbon/LaunchServices.h"

#include "platform/carbon/GioApplication.h"

#include <QFileInfo>

namespace {

OSStatus checkItem(const QUrl& item) {
    // An address without a scheme could begin with a hyphen, and a program would take it for an option.
    if (!item.isValid() || item.scheme().isEmpty())
        return paramErr;
    return item.isLocalFile() && !QFileInfo::exists(item.toLocalFile()) ? fnfErr : noErr;
}

OSStatus openWith(GDesktopAppInfo* application, const QUrl& item) {
    return GioApplication::launch(application, item) ? noErr : kLSUnknownErr;
}

OSStatus openBySystem(const QUrl& item) {
    const auto application =
        item.isLocalFile()
            ? GioApplication::forFile(item.toLocalFile())
            : GioApplication::forContentType(QStringLiteral("x-scheme-handler/") + item.scheme());
    return application ? openWith(application.get(), item) : kLSApplicationNotFoundErr;
}

OSStatus openItem(const QUrl& item, const QUrl& appURL) {
    if (const OSStatus status = checkItem(item); status != noErr)
        return status;
    if (appURL.isEmpty())
        return openBySystem(item);
    const QString path = appURL.toLocalFile();
    if (path.isEmpty() || !QFileInfo::exists(path))
        return fnfErr;
    const auto application = GioApplication::atPath(path);
    return application ? openWith(application.get(), item) : kLSNotAnApplicationErr;
}

} // namespace

OSStatus LSOpenFromURLSpec(const LSLaunchURLSpec& spec) {
    for (const QUrl& item : spec.itemURLs) {
        if (const OSStatus status = openItem(item, spec.appURL); status != noErr)
            return status;
    }
    return noErr;
}
