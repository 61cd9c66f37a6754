// SPDX-License-Identifier: MIT
#pragma once

#include "platform/preferences/PreferenceKey.h"
#include "platform/updates/Appcast.h"
#include "platform/updates/FeedFetcher.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <memory>
#include <optional>

class UpdateAlert;
class UpdateChecker;
class QProgressDialog;

/// Whether to check at all by itself, how often (seconds; less than an hour counts as an hour), and two
/// switches for installing, which nothing here ever does.
inline constexpr PreferenceKey<bool> SUEnableAutomaticChecksKey{QLatin1String("SUEnableAutomaticChecks"),
                                                                true};
inline constexpr PreferenceKey<int> SUScheduledCheckIntervalKey{QLatin1String("SUScheduledCheckInterval"),
                                                                7 * 24 * 60 * 60};
inline constexpr PreferenceKey<bool> SUAllowsAutomaticUpdatesKey{QLatin1String("SUAllowsAutomaticUpdates")};
inline constexpr PreferenceKey<bool> SUAutomaticallyUpdateKey{QLatin1String("SUAutomaticallyUpdate")};
/// Kept by the updater itself: the start of the last check (ISO 8601, UTC) and the build that the user does
/// not want to hear of again.
inline const PreferenceKey<QString> SULastCheckTimeKey{QLatin1String("SULastCheckTime")};
inline const PreferenceKey<QString> SUSkippedVersionKey{QLatin1String("SUSkippedVersion")};

/// One more parameter for the feed's query, not yet percent-encoded.
struct FeedParameter {
    QString key;
    QString value;
};

/// What the updater asks of the program.
class UpdateCheckerDelegate {
public:
    virtual ~UpdateCheckerDelegate() = default;

    /// Asked before each check, for what else the feed's query shall carry. `sendingSystemProfile` is always
    /// false.
    virtual QList<FeedParameter> feedParametersForUpdater(UpdateChecker* updater,
                                                          bool sendingSystemProfile) = 0;

    /// Shows the download page; on false the updater tells the user that no browser could be opened.
    virtual bool openDownloadPage(const QUrl& page) = 0;
};

/// When the updater acts.
struct UpdateCheckerTiming {
    std::chrono::milliseconds firstCheck = std::chrono::minutes(5);     ///< none sooner after the start
    std::chrono::milliseconds shortestInterval = std::chrono::hours(1); ///< between two checks
    /// The longest single wait. Timers stand still while the machine sleeps, so that the wall clock is asked
    /// now and then.
    std::chrono::milliseconds longestWait = std::chrono::hours(6);
    FetchLimits limits = {};
};

/// Asks a feed for newer versions, by itself and when told to, and offers them to the user. The feed is RSS
/// over https; an offer leads to a web page and installs nothing.
class UpdateChecker : public QObject {
    Q_OBJECT

public:
    explicit UpdateChecker(const UpdateCheckerTiming& timing = {});
    ~UpdateChecker() override;

    /// Where the feed is, and from now on checks by itself. Nothing but https is ever asked: with an empty or
    /// other address there are no checks by itself, and one that is asked for fails.
    void setFeedURL(const QUrl& url);
    QUrl feedURL() const { return feedURL_; }

    /// How long until it looks by itself, zero when that is due; nothing when it does not, or while a check
    /// or its answer is under way.
    std::optional<std::chrono::milliseconds> timeUntilNextCheck() const;

    /// The delegate stays the caller's and outlives the updater, or is replaced by none.
    void setDelegate(UpdateCheckerDelegate* delegate) { delegate_ = delegate; }

public Q_SLOTS:
    /// Checks now, because the user asked: the outcome is shown in any case, a skipped version too. While a
    /// check or its dialog is there, that one comes to the front instead. `sender` is the control that asked.
    void checkForUpdates(QObject* sender);

private:
    void schedule();
    void timerFired();
    void startCheck();
    QUrl completeFeedURL();
    void showProgress();
    void endCheck();
    void feedFetched(const QByteArray& feed);
    void checkFailed(FetchFailure failure, const QString& reason);
    void offer(const AppcastItem& item);
    void openPage(const QUrl& page);
    void answer(UpdateAlert* alert);
    void keep(UpdateAlert* alert);

    UpdateCheckerTiming timing_;
    QElapsedTimer sinceStart_;
    QTimer timer_;
    QUrl feedURL_;
    UpdateCheckerDelegate* delegate_ = nullptr;
    std::unique_ptr<QObject> fetch_; ///< there while a check is under way
    bool asked_ = false;             ///< the check under way is one that the user asked for
    QPointer<QProgressDialog> progress_;
    QPointer<UpdateAlert> alert_;
};
