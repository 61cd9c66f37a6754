// SPDX-License-Identifier: MIT
#include "platform/update/SUUpdater.h"

#include "platform/foundation/NSBundle.h"
#include "platform/foundation/NSDate.h"
#include "platform/foundation/NSLog.h"
#include "platform/foundation/NSUserDefaults.h"
#include "platform/update/SUUpdateAlert.h"

#include <QProgressDialog>

#include <algorithm>
#include <utility>

using std::chrono::milliseconds;

namespace {

constexpr std::chrono::seconds kProgressDelay(1);

QString runningBuild() {
    return NSBundle::mainBundle().infoString(QStringLiteral("CFBundleVersion"));
}

QString runningVersion() {
    return NSBundle::mainBundle().infoString(QStringLiteral("CFBundleShortVersionString"));
}

void bringForward(QWidget* window) {
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

SUUpdater::SUUpdater(QObject* parent) : SUUpdater(SUUpdaterTiming(), parent) {
}

SUUpdater::SUUpdater(const SUUpdaterTiming& timing, QObject* parent) : QObject(parent), timing_(timing) {
    sinceStart_.start();
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &SUUpdater::timerFired);
    connect(NSUserDefaults::standardUserDefaults(), &NSUserDefaults::valueChanged, this,
            [this](const QString& key) {
                if (key == SUEnableAutomaticChecksKey || key == SUScheduledCheckIntervalKey)
                    schedule();
            });
}

SUUpdater::~SUUpdater() {
    delete progress_;
    delete alert_;
}

void SUUpdater::setFeedURL(const QUrl& url) {
    feedURL_ = url;
    schedule();
}

void SUUpdater::schedule() {
    timer_.stop();
    if (const auto wait = timeUntilNextCheck())
        timer_.start(std::min(*wait, timing_.longestWait));
}

void SUUpdater::timerFired() {
    if (timeUntilNextCheck() != milliseconds::zero())
        return schedule();
    asked_ = false;
    startCheck();
}

std::optional<milliseconds> SUUpdater::timeUntilNextCheck() const {
    const NSUserDefaults* defaults = NSUserDefaults::standardUserDefaults();
    const bool isBusy = fetcher_ || alert_;
    if (isBusy || !SUIsSecure(feedURL_) || !defaults->boolForKey(SUEnableAutomaticChecksKey))
        return std::nullopt;
    const milliseconds interval = std::max<milliseconds>(
        std::chrono::seconds(defaults->integerForKey(SUScheduledCheckIntervalKey)), timing_.shortestInterval);
    const QDateTime last = QDateTime::fromString(defaults->stringForKey(SULastCheckTimeKey), Qt::ISODate);
    const QDateTime now = NSDate::date();
    // A last check that is still to come is the trace of a clock that was wrong.
    const milliseconds untilDue =
        last.isValid() && last <= now ? interval - milliseconds(last.msecsTo(now)) : milliseconds::zero();
    const milliseconds untilAllowed = timing_.firstCheck - milliseconds(sinceStart_.elapsed());
    return std::max({untilDue, untilAllowed, milliseconds::zero()});
}

void SUUpdater::checkForUpdates(QObject*) {
    if (alert_)
        return bringForward(alert_);
    asked_ = true;
    if (fetcher_)
        return progress_ ? bringForward(progress_) : showProgress();
    timer_.stop();
    if (SUIsSecure(feedURL_)) {
        startCheck();
        showProgress();
    } else {
        checkFailed(SUFailure::NoFeed, QStringLiteral("no https address is set"));
    }
}

void SUUpdater::startCheck() {
    const QUrl url = completeFeedURL();
    // A check counts from its start, whatever comes of it: a server that is down is not asked more often.
    NSUserDefaults::standardUserDefaults()->setObject(NSDate::date().toString(Qt::ISODate),
                                                      SULastCheckTimeKey);
    fetcher_ = new SUFeedFetcher(timing_.limits, NSBundle::mainBundle().builtInPlugInsPath(), this);
    connect(fetcher_, &SUFeedFetcher::fetched, this, &SUUpdater::feedFetched);
    connect(fetcher_, &SUFeedFetcher::failed, this, &SUUpdater::checkFailed);
    fetcher_->fetch(url);
}

QUrl SUUpdater::completeFeedURL() {
    const QList<SUFeedParameter> parameters =
        delegate_ ? delegate_->feedParametersForUpdater(this, false) : QList<SUFeedParameter>();
    if (parameters.isEmpty())
        return feedURL_;
    QUrl url = feedURL_;
    QString query = url.query(QUrl::FullyEncoded);
    for (const SUFeedParameter& parameter : parameters) {
        query += query.isEmpty() ? QString() : QStringLiteral("&");
        query += QString::fromLatin1(QUrl::toPercentEncoding(parameter.key) + '=' +
                                     QUrl::toPercentEncoding(parameter.value));
    }
    url.setQuery(query);
    return url;
}

void SUUpdater::showProgress() {
    const NSBundle& bundle = NSBundle::mainBundle();
    progress_ =
        new QProgressDialog(bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "Checking for updates...")),
                            bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "Cancel")), 0, 0);
    progress_->setWindowTitle(bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "Software Update")));
    progress_->setMinimumWidth(320);
    connect(progress_, &QProgressDialog::canceled, this, [this] {
        endCheck();
        schedule();
    });
    // Most checks end sooner, and a dialog that only flashes up helps nobody.
    QTimer::singleShot(kProgressDelay, progress_, [this, dialog = progress_.data()] {
        if (dialog == progress_)
            bringForward(dialog);
    });
}

void SUUpdater::endCheck() {
    if (fetcher_) {
        fetcher_->disconnect(this);
        std::exchange(fetcher_, nullptr)->deleteLater();
    }
    if (progress_) {
        progress_->disconnect(this);
        std::exchange(progress_, nullptr)->deleteLater();
    }
}

void SUUpdater::feedFetched(const QByteArray& feed) {
    endCheck();
    QString error;
    const std::optional<SUAppcast> appcast = SUAppcast::read(feed, &error);
    if (!appcast)
        return checkFailed(SUFailure::Unusable, error);
    const SUAppcastItem& newest = appcast->newest();
    const bool isNewer = SUCompareBuildNumbers(newest.build, runningBuild()) > 0;
    const QString skipped = NSUserDefaults::standardUserDefaults()->stringForKey(SUSkippedVersionKey);
    const bool isSkipped = !skipped.isEmpty() && SUCompareBuildNumbers(newest.build, skipped) == 0;
    if (isNewer && (asked_ || !isSkipped))
        offer(newest);
    else if (asked_)
        answer(SUUpdateAlert::upToDate(runningVersion()));
    schedule();
}

void SUUpdater::checkFailed(SUFailure failure, const QString& reason) {
    endCheck();
    NSLog(QStringLiteral("The check for updates failed (%1).").arg(reason));
    if (asked_)
        answer(SUUpdateAlert::checkFailed(failure));
    schedule();
}

void SUUpdater::offer(const SUAppcastItem& item) {
    SUUpdateAlert* alert = SUUpdateAlert::updateAvailable(item, runningVersion());
    connect(alert, &QDialog::finished, this, [this, item](int result) {
        if (result == SUUpdateAlert::LearnMore)
            openPage(item.page);
        else if (result == SUUpdateAlert::Skip)
            NSUserDefaults::standardUserDefaults()->setObject(item.build, SUSkippedVersionKey);
    });
    if (asked_)
        return answer(alert);
    // What the user types elsewhere at this moment must not answer the question.
    alert->setAttribute(Qt::WA_ShowWithoutActivating);
    keep(alert);
    alert->show();
}

void SUUpdater::openPage(const QUrl& page) {
    if (!delegate_ || !delegate_->openDownloadPage(page))
        answer(SUUpdateAlert::pageNotOpened(page));
}

void SUUpdater::answer(SUUpdateAlert* alert) {
    keep(alert);
    bringForward(alert);
}

void SUUpdater::keep(SUUpdateAlert* alert) {
    alert_ = alert;
    connect(alert, &QDialog::finished, this, [this, alert] {
        if (alert_ == alert)
            alert_ = nullptr;
        schedule();
    });
}
