// SPDX-License-Identifier: MIT
#include "platform/updates/FeedFetcher.h"

#include "platform/bundle/Bundle.h"

#include <QFileInfo>
#include <QPluginLoader>

namespace {

/// The plug-in, which stays once it is loaded; null, and the reason in `error`, when it can't be.
Network* network(const QString& folder, QString* error) {
    const QString path = folder + QStringLiteral("/liblumivane_network.so");
    if (!QFileInfo(path).isFile()) {
        *error = QStringLiteral("there is no file %1").arg(path);
        return nullptr;
    }
    QPluginLoader loader(path);
    auto* const plugIn = qobject_cast<Network*>(loader.instance());
    if (!plugIn)
        *error = loader.errorString();
    return plugIn;
}

QString userAgent() {
    const Bundle& bundle = Bundle::main();
    return QStringLiteral("%1/%2").arg(bundle.infoString(QStringLiteral("CFBundleName")),
                                       bundle.infoString(QStringLiteral("CFBundleShortVersionString")));
}

} // namespace

FeedFetcher::FeedFetcher(const FetchLimits& limits, const QString& plugIns, QObject* parent)
    : QObject(parent), limits_(limits), plugIns_(plugIns) {
}

void FeedFetcher::fetch(const QUrl& url) {
    if (!isSecure(url))
        return failLater(FetchFailure::NoFeed, QStringLiteral("the address is not https"));
    QString error;
    Network* const plugIn = network(plugIns_, &error);
    if (!plugIn)
        return failLater(FetchFailure::NoPlugIn, error);
    underWay_ = plugIn->fetch(
        url, userAgent(), limits_,
        {.fetched = [this](const QByteArray& feed) { Q_EMIT fetched(feed); },
         .failed = [this](FetchFailure failure, const QString& reason) { Q_EMIT failed(failure, reason); }});
}

void FeedFetcher::failLater(FetchFailure failure, const QString& reason) {
    QMetaObject::invokeMethod(
        this, [this, failure, reason] { Q_EMIT failed(failure, reason); }, Qt::QueuedConnection);
}
