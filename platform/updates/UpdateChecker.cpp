// SPDX-License-Identifier: MIT
#include "platform/updates/UpdateChecker.h"

#include "platform/bundle/Bundle.h"
#include "platform/locale/Clock.h"
#include "platform/log/Log.h"
#include "platform/preferences/Preferences.h"
#include "platform/updates/UpdateAlert.h"

#include <QProgressDialog>

#include <algorithm>
#include <utility>

using std::chrono::milliseconds;

namespace {

constexpr std::chrono::seconds kProgressDelay(1);

QString runningBuild() {
    return Bundle::main().infoString(QStringLiteral("CFBundleVersion"));
}

QString runningVersion() {
    return Bundle::main().infoString(QStringLiteral("CFBundleShortVersionString"));
}

void bringForward(QWidget* window) {
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

UpdateChecker::UpdateChecker(const UpdateCheckerTiming& timing) : timing_(timing) {
    sinceStart_.start();
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &UpdateChecker::timerFired);
    connect(Preferences::standard(), &Preferences::valueChanged, this, [this](const QString& name) {
        if (name == SUEnableAutomaticChecksKey.name || name == SUScheduledCheckIntervalKey.name)
            schedule();
    });
}

UpdateChecker::~UpdateChecker() {
    delete progress_;
    delete alert_;
}

void UpdateChecker::setFeedURL(const QUrl& url) {
    feedURL_ = url;
    schedule();
}

void UpdateChecker::schedule() {
    timer_.stop();
    if (const auto wait = timeUntilNextCheck())
        timer_.start(std::min(*wait, timing_.longestWait));
}

void UpdateChecker::timerFired() {
    if (timeUntilNextCheck() != milliseconds::zero())
        return schedule();
    asked_ = false;
    startCheck();
}

std::optional<milliseconds> UpdateChecker::timeUntilNextCheck() const {
    const Preferences* defaults = Preferences::standard();
    const bool isBusy = fetch_ || alert_;
    if (isBusy || !isSecure(feedURL_) || !defaults->value(SUEnableAutomaticChecksKey))
        return std::nullopt;
    const milliseconds interval = std::max<milliseconds>(
        std::chrono::seconds(defaults->value(SUScheduledCheckIntervalKey)), timing_.shortestInterval);
    const QDateTime last = QDateTime::fromString(defaults->value(SULastCheckTimeKey), Qt::ISODate);
    const QDateTime now = Clock::now();
    // A last check that is still to come is the trace of a clock that was wrong.
    const milliseconds untilDue =
        last.isValid() && last <= now ? interval - milliseconds(last.msecsTo(now)) : milliseconds::zero();
    const milliseconds untilAllowed = timing_.firstCheck - milliseconds(sinceStart_.elapsed());
    return std::max({untilDue, untilAllowed, milliseconds::zero()});
}

void UpdateChecker::checkForUpdates(QObject*) {
    if (alert_)
        return bringForward(alert_);
    asked_ = true;
    if (fetch_)
        return progress_ ? bringForward(progress_) : showProgress();
    timer_.stop();
    if (isSecure(feedURL_)) {
        startCheck();
        showProgress();
    } else {
        checkFailed(FetchFailure::NoFeed, QStringLiteral("no https address is set"));
    }
}

void UpdateChecker::startCheck() {
    const QUrl url = completeFeedURL();
    // A check counts from its start, whatever comes of it: a server that is down is not asked more often.
    Preferences::standard()->set(SULastCheckTimeKey, Clock::now().toString(Qt::ISODate));
    fetch_ = fetchFeed(
        url, timing_.limits,
        {.fetched = [this](const QByteArray& feed) { feedFetched(feed); },
         .failed = [this](FetchFailure failure, const QString& reason) { checkFailed(failure, reason); }});
}

QUrl UpdateChecker::completeFeedURL() {
    const QList<FeedParameter> parameters =
        delegate_ ? delegate_->feedParametersForUpdater(this, false) : QList<FeedParameter>();
    QUrl url = feedURL_;
    QString query = url.query(QUrl::FullyEncoded);
    for (const FeedParameter& parameter : parameters) {
        query += query.isEmpty() ? QString() : QStringLiteral("&");
        query += QString::fromLatin1(QUrl::toPercentEncoding(parameter.key) + '=' +
                                     QUrl::toPercentEncoding(parameter.value));
    }
    url.setQuery(query);
    return url;
}

void UpdateChecker::showProgress() {
    const Bundle& bundle = Bundle::main();
    progress_ =
        new QProgressDialog(bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "Checking for updates...")),
                            bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "Cancel")), 0, 0);
    progress_->setWindowTitle(bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "Software Update")));
    progress_->setMinimumWidth(320);
    connect(progress_, &QProgressDialog::canceled, this, [this] {
        fetch_.reset();
        endCheck();
        schedule();
    });
    // Most checks end sooner, and a dialog that only flashes up helps nobody.
    QTimer::singleShot(kProgressDelay, progress_, [this, dialog = progress_.data()] {
        if (dialog == progress_)
            bringForward(dialog);
    });
}

void UpdateChecker::endCheck() {
    if (fetch_)
        fetch_.release()->deleteLater(); // it may be what calls
    if (progress_) {
        progress_->disconnect(this);
        std::exchange(progress_, nullptr)->deleteLater();
    }
}

void UpdateChecker::feedFetched(const QByteArray& feed) {
    endCheck();
    QString error;
    const std::optional<AppcastItem> newest = newestItem(feed, &error);
    if (!newest)
        return checkFailed(FetchFailure::Unusable, error);
    const bool isNewer = compareBuildNumbers(newest->build, runningBuild()) > 0;
    const QString skipped = Preferences::standard()->value(SUSkippedVersionKey);
    const bool isSkipped = !skipped.isEmpty() && compareBuildNumbers(newest->build, skipped) == 0;
    if (isNewer && (asked_ || !isSkipped))
        offer(*newest);
    else if (asked_)
        answer(UpdateAlert::upToDate(runningVersion()));
    schedule();
}

void UpdateChecker::checkFailed(FetchFailure failure, const QString& reason) {
    endCheck();
    logLine(QStringLiteral("The check for updates failed (%1).").arg(reason));
    if (asked_)
        answer(UpdateAlert::checkFailed(failure));
    schedule();
}

void UpdateChecker::offer(const AppcastItem& item) {
    UpdateAlert* alert = UpdateAlert::updateAvailable(item, runningVersion());
    connect(alert, &QDialog::finished, this, [this, item](int result) {
        if (result == UpdateAlert::LearnMore)
            openPage(item.page);
        else if (result == UpdateAlert::Skip)
            Preferences::standard()->set(SUSkippedVersionKey, item.build);
    });
    if (asked_)
        return answer(alert);
    // What the user types elsewhere at this moment must not answer the question.
    alert->setAttribute(Qt::WA_ShowWithoutActivating);
    keep(alert);
    alert->show();
}

void UpdateChecker::openPage(const QUrl& page) {
    if (!delegate_ || !delegate_->openDownloadPage(page))
        answer(UpdateAlert::pageNotOpened(page));
}

void UpdateChecker::answer(UpdateAlert* alert) {
    keep(alert);
    bringForward(alert);
}

void UpdateChecker::keep(UpdateAlert* alert) {
    alert_ = alert;
    connect(alert, &QDialog::finished, this, [this, alert] {
        if (alert_ == alert)
            alert_ = nullptr;
        schedule();
    });
}
