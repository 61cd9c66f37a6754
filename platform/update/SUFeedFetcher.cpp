// SPDX-License-Identifier: MIT
#include "platform/update/SUFeedFetcher.h"

#include "platform/foundation/NSBundle.h"

#include <QPluginLoader>

namespace {

/// The plug-in, which stays once it is loaded; null, and the reason in `error`, when it can't be.
SUNetwork* network(QString* error) {
    QPluginLoader loader(NSBundle::mainBundle().builtInPlugInsPath() +
                         QStringLiteral("/liblumivane_network.so"));
    auto* const plugIn = qobject_cast<SUNetwork*>(loader.instance());
    if (!plugIn)
        *error = loader.errorString();
    return plugIn;
}

QString userAgent() {
    const NSBundle& bundle = NSBundle::mainBundle();
    return QStringLiteral("%1/%2").arg(bundle.infoString(QStringLiteral("CFBundleName")),
                                       bundle.infoString(QStringLiteral("CFBundleVersion")));
}

} // namespace

SUFeedFetcher::SUFeedFetcher(const SUFetchLimits& limits, QObject* parent)
    : QObject(parent), limits_(limits) {
}

void SUFeedFetcher::fetch(const QUrl& url) {
    if (!SUIsSecure(url))
        return failLater(SUFailure::NoFeed, QStringLiteral("the address is not https"));
    QString error;
    SUNetwork* const plugIn = network(&error);
    if (!plugIn)
        return failLater(SUFailure::NoSecurity, error);
    underWay_ = plugIn->fetch(
        url, userAgent(), limits_,
        {.fetched = [this](const QByteArray& feed) { Q_EMIT fetched(feed); },
         .failed = [this](SUFailure failure, const QString& reason) { Q_EMIT failed(failure, reason); }});
}

void SUFeedFetcher::failLater(SUFailure failure, const QString& reason) {
    QMetaObject::invokeMethod(
        this, [this, failure, reason] { Q_EMIT failed(failure, reason); }, Qt::QueuedConnection);
}
