// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QUrl>
#include <QVariantMap>

#include <optional>

/// The application's delegate.
class ApplicationDelegate {
public:
    /// The login items, "URL" (QUrl) and "Hidden" (bool) of each; nothing, with a log line, when they can't
    /// be had.
    std::optional<QList<QVariantMap>> allLoginItems() const;

    /// Whether a file URL, or nothing for this application itself, is a login item.
    bool alreadySetToStartup(const std::optional<QUrl>& url) const;

    /// Removes every login item whose path contains `name`, letter case ignored.
    void removeOldStartupItemsContaining(const QString& name);

    /// Switches launch at login on or off for a file URL, or nothing for this application itself. Either way
    /// the items of other copies go.
    void toggleSetToStartup(const std::optional<QUrl>& url);

    /// At every start: tells the old background application and an older copy to quit, and writes the
    /// preferences to disk.
    void quitOlderCopies();

    /// At every start: makes the application a login item when it is none.
    void ensureSetToStartup();
};
