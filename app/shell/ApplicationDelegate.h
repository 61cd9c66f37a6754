// SPDX-License-Identifier: MIT
#pragma once

#include "platform/update/SUUpdater.h"

#include <QObject>

/// The program's shell: what happens at its start, and what the panel asks of it beyond the Moon.
class ApplicationDelegate : public QObject, public SUUpdaterDelegate {
    Q_OBJECT

public:
    /// Builds the feed's address from the bundle, the preferences and the system, and hands it to the update
    /// checker. A value that makes it an invalid address leaves the checker without one.
    void initCheckForUpdateURL();

    /// The update feed's address at `host`; the values go into it as they are.
    static QString feedURLString(const QString& host, const QString& build, const QString& interval,
                                 const QString& version, const QString& system);

    /// Logs the check; the feed's address already carries all that there is to tell.
    QList<SUFeedParameter> feedParametersForUpdater(SUUpdater* updater, bool sendingSystemProfile) override;

public Q_SLOTS:
    /// Checks for a new version now.
    void forwardCheckForUpdate(QObject* sender);

private:
    SUUpdater sparkleUpdater_;
};
