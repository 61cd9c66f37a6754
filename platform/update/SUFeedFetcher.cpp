// SPDX-License-Identifier: MIT
#include "platform/update/SUFeedFetcher.h"

#include "platform/foundation/NSBundle.h"

#include <QFileInfo>
#include <QPluginLoader>

namespace {

/// The plug-in, which stays once it is loaded; null, and the reason in `error`, when it can't be.
SUNetwork* network(const QString& folder, QString* error) {
    const QString path = folder + QStringLiteral("/liblumivane_network.so");
    if (!QFileInfo(path).isFile()) {
        *error = QStringLiteral("there is no file %1").arg(path);
        return nullptr;
    }
    QPluginLoader loader(path);
    auto* const plugIn = qobject_cast<SUNetwork*>(loader.instance());
    if (!plugIn)
        *error = loader.errorString();
    return plugIn;
}

QString userAgent() {
    const NSBundle& bundle = NSBundle::mainBundle();
    return QStringLiteral("%1/%2").arg(bundle.infoString(QStringLiteral("CFBundleName")),
                                       bundle.infoString(QStringLiteral("CFBundleShortVersionString")));
}

} // namespace

SUFeedFetcher::SUFeedFetcher(const SUFetchLimits& limits, const QString& plugIns, QObject* parent)
    : QObject(parent), limits_(limits), plugIns_(plugIns) {
}

void SUFeedFetcher::fetch(const QUrl& url) {
    if (!SUIsSecure(url))
        return failLater(SUFailure::NoFeed, QStringLiteral("the address is not https"));
    QString error;
    SUNetwork* const plugIn = network(plugIns_, &error);
    if (!plugIn)
        return failLater(SUFailure::NoPlugIn, error);
    underWay_ = plugIn->fetch(
        url, userAgent(), limits_,
        {.fetched = [this](const QByteArray& feed) { Q_EMIT fetched(feed); },
         .failed = [this](SUFailure failure, const QString& reason) { Q_EMIT failed(failure, reason); }});
}

void SUFeedFetcher::failLater(SUFailure failure, const QString& reason) {
    QMetaObject::invokeMethod(
        this, [this, failure, reason] { Q_EMIT failed(failure, reason); }, Qt::QueuedConnection);
}
