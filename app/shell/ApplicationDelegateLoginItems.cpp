// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "platform/autostart/Autostart.h"
#include "platform/bundle/Bundle.h"
#include "platform/log/Log.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/ExtraAppleEventManagerUtilities.h"
#include "shared/utilities/classes/values/ExtraStringUtilities.h"
#include "shared/utilities/libraries/LoginItemsAE/LoginItemsAE.h"

#include <algorithm>

namespace {

QUrl bundleURL() {
    return QUrl::fromLocalFile(Bundle::main().bundlePath());
}

QUrl urlOf(const QVariantMap& loginItem) {
    return loginItem.value(QStringLiteral("URL")).toUrl();
}

void removeLoginItem(qsizetype index, const QUrl& url) {
    if (const LIAEStatus err = LIAERemove(index); err != kLIAENoError)
        logLine(QStringLiteral("Can't remove %1 from the login items (%2).").arg(url.toLocalFile()).arg(err));
    else
        logLine(QStringLiteral("Removed %1 from the login items.").arg(url.toLocalFile()));
}

void addLoginItem(const QUrl& url) {
    if (const LIAEStatus err = LIAEAddURLAtEnd(&url, false); err != kLIAENoError)
        logLine(QStringLiteral("Can't add %1 to the login items (%2).").arg(url.toLocalFile()).arg(err));
}

} // namespace

std::optional<QList<QVariantMap>> ApplicationDelegate::allLoginItems() const {
    std::unique_ptr<LoginItemsList> items;
    const LIAEStatus err = LIAECopyLoginItems(&items);
    if (err == kLIAENoError)
        return *items;
    logLine(QStringLiteral("Can't get login items list from system (%1).").arg(err));
    return std::nullopt;
}

bool ApplicationDelegate::alreadySetToStartup(const std::optional<QUrl>& url) const {
    const QUrl wanted = url.value_or(bundleURL());
    const auto items = allLoginItems();
    return items &&
           std::ranges::any_of(*items, [&](const QVariantMap& item) { return urlOf(item) == wanted; });
}

void ApplicationDelegate::removeOldStartupItemsContaining(const QString& name) {
    const auto items = allLoginItems();
    if (!items)
        return;
    // Backwards, so that the positions of the items still to come stay true.
    for (qsizetype i = items->size() - 1; i >= 0; --i) {
        if (ExtraStringUtilities::contains(urlOf(items->at(i)).path(QUrl::FullyDecoded), name))
            removeLoginItem(i, urlOf(items->at(i)));
    }
}

void ApplicationDelegate::toggleSetToStartup(const std::optional<QUrl>& url) {
    const QUrl wanted = url.value_or(bundleURL());
    const bool wasSet = alreadySetToStartup(wanted);
    removeOldStartupItemsContaining(QStringLiteral("Lumivane"));
    if (!wasSet)
        addLoginItem(wanted);
}

void ApplicationDelegate::quitOlderCopies() {
    using namespace ExtraAppleEventManagerUtilities;
    const QString identifier = Bundle::main().bundleIdentifier();
    quickSend(Event::Quit, identifier + QStringLiteral(".backgrounder.v203"));
    quickSend(Event::Quit, identifier);
    Preferences::standard()->synchronize();
}

void ApplicationDelegate::ensureSetToStartup() {
    const QUrl wanted = bundleURL();
    if (alreadySetToStartup(wanted))
        return Autostart::mend(wanted.toLocalFile());
    removeOldStartupItemsContaining(QStringLiteral("Lumivane"));
    addLoginItem(wanted);
}
