// SPDX-License-Identifier: MIT
#include "platform/updates/FeedFetcher.h"

#include "platform/bundle/Bundle.h"

#include <QFileInfo>
#include <QPluginLoader>

#include <utility>

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

std::unique_ptr<QObject> failLater(FetchFailure failure, const QString& reason, const Network::Outcome& to) {
    auto pending = std::make_unique<QObject>();
    QMetaObject::invokeMethod(
        pending.get(), [=] { to.failed(failure, reason); }, Qt::QueuedConnection);
    return pending;
}

} // namespace

std::unique_ptr<QObject> fetchFeed(const QUrl& url, const FetchLimits& limits, const QString& plugIns,
                                   Network::Outcome outcome) {
    if (!isSecure(url))
        return failLater(FetchFailure::NoFeed, QStringLiteral("the address is not https"), outcome);
    QString error;
    Network* const plugIn = network(plugIns, &error);
    return plugIn ? plugIn->fetch(url, userAgent(), limits, std::move(outcome))
                  : failLater(FetchFailure::NoPlugIn, error, outcome);
}
