// SPDX-License-Identifier: MIT
#pragma once

#include "app/ui/Shell.h"
#include "platform/updates/UpdateChecker.h"

#include <QList>
#include <QObject>
#include <QUrl>
#include <QVariantMap>

#include <memory>
#include <optional>

/// The program's shell: its start, the table of preferences, launch at login and the update check.
class ApplicationDelegate : public QObject, public Shell, public UpdateCheckerDelegate {
    Q_OBJECT

public:
    /// Registers the preferences' defaults, loads the lunation table and makes the update checker.
    ApplicationDelegate();
    ~ApplicationDelegate() override;

    /// The second half of the start: the update feed's address, then `installNewVersion`.
    void awakeFromNib();

    /// Registers the defaults of time zone, place, brightness and update checks, and forbids the update
    /// checker to install anything by itself.
    static void setupDefaultPreferences();

    // Launch at login

    /// The login items in order, each {"URL": QUrl, "Hidden": bool}; nothing, with a log line, when they
    /// can't be had.
    std::optional<QList<QVariantMap>> allLoginItems() const;

    bool alreadySetToStartup(const std::optional<QUrl>& url) const override;

    /// Removes every login item whose path contains `name`, letter case ignored.
    void removeOldStartupItemsContaining(const QString& name);

    void toggleSetToStartup(const std::optional<QUrl>& url) override;

    /// Tells older copies to quit, warns once for a place outside the Applications folders, and makes sure
    /// that this copy starts at login.
    void installNewVersion();

    // Update check

    /// Builds the feed's address from the bundle, the preferences and the system, and hands it to the update
    /// checker. A value that makes it an invalid address leaves the checker without one.
    void initCheckForUpdateURL();

    /// The update feed's address at `host`; the values go into it as they are.
    static QString feedURLString(const QString& host, const QString& build, const QString& interval,
                                 const QString& version, const QString& system);

    /// The address that `text` is as it stands: a blank or a letter beyond ASCII, from a version, is not
    /// mended into one that nobody meant, but gives an empty one.
    static QUrl feedURL(const QString& text);

    /// Logs the check; the feed's address already carries all that there is to tell.
    QList<FeedParameter> feedParametersForUpdater(UpdateChecker* updater, bool sendingSystemProfile) override;

    /// Opens an offer's page in the user's browser; false, with a log line, when there is none that would.
    bool openDownloadPage(const QUrl& page) override;

    void forwardCheckForUpdate(QObject* sender) override;

Q_SIGNALS:
    /// The desktop asks to see the program.
    void raiseRequested();

private:
    void setupDefaults();
    void announce();
    bool runAction(const QString& name);
    void quit();
    void quitOlderCopies();
    void warnOutsideApplicationsOnce(const QString& bundlePath);
    void ensureSetToStartup();

    std::unique_ptr<UpdateChecker> sparkleUpdater_;
    bool isQuitting_ = false;
};
