// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "platform/bundle/Bundle.h"
#include "platform/log/Log.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/ExtraStringSystemUtilities.h"
#include "shared/utilities/classes/InternetConfig.h"

#include <algorithm>

QString ApplicationDelegate::feedURLString(const QString& host, const QString& build, const QString& interval,
                                           const QString& version, const QString& system) {
    QString url = QStringLiteral("https://") + host;
    url += QStringLiteral("/cgi-sys/cgiwrap/Corvanta/SharewareAppCast.pl?");
    url += QStringLiteral("bld=") + build;
    url += QStringLiteral("&frq=") + interval;
    // The feed server knows the product by these two, on every kind of machine.
    url += QStringLiteral("&prd=lv");
    url += QStringLiteral("&end=i386");
    url += QStringLiteral("&ver=") + version;
    url += QStringLiteral("&sys=") + system;
    return url;
}

QUrl ApplicationDelegate::feedURL(const QString& text) {
    const bool isASCII = std::ranges::all_of(text, [](QChar c) { return c.unicode() < 128; });
    const QUrl url(text, QUrl::StrictMode);
    return isASCII && url.isValid() ? url : QUrl();
}

void ApplicationDelegate::initCheckForUpdateURL() {
    const Bundle& bundle = Bundle::main();
    const QString url = feedURLString(
        bundle.infoString(QStringLiteral("LVFeedHost")), bundle.infoString(QStringLiteral("CFBundleVersion")),
        QString::number(Preferences::standard()->value(SUScheduledCheckIntervalKey)),
        bundle.infoString(QStringLiteral("CFBundleShortVersionString")),
        ExtraStringUtilities::stringWithOSVersion());
    sparkleUpdater_->setDelegate(this);
    sparkleUpdater_->setFeedURL(feedURL(url));
}

void ApplicationDelegate::forwardCheckForUpdate(QObject* sender) {
    sparkleUpdater_->checkForUpdates(sender);
}

QList<FeedParameter> ApplicationDelegate::feedParametersForUpdater(UpdateChecker* updater, bool) {
    logLine(QStringLiteral("Checking for update: %1").arg(updater->feedURL().toString()));
    return {};
}

bool ApplicationDelegate::openDownloadPage(const QUrl& page) {
    try {
        InternetConfig().launchURL(page.toString(QUrl::FullyEncoded), QString());
        return true;
    } catch (const std::exception& failure) {
        logLine(QString::fromUtf8(failure.what()));
        return false;
    }
}
