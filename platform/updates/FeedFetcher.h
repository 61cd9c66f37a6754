// SPDX-License-Identifier: MIT
#pragma once

#include "platform/updates/network/Network.h"

/// Fetches one feed, for the update framework's stand-in. Backed by the plug-in Network, which is loaded
/// for the first fetch.
class FeedFetcher : public QObject {
    Q_OBJECT

public:
    /// Takes the plug-in from the folder `plugIns`.
    FeedFetcher(const FetchLimits& limits, const QString& plugIns, QObject* parent = nullptr);

    /// Asks `url` once; one of the signals follows, never before this returns. Deleting the fetcher ends what
    /// is under way.
    void fetch(const QUrl& url);

Q_SIGNALS:
    void fetched(const QByteArray& feed);
    /// `reason` is for the log.
    void failed(FetchFailure failure, const QString& reason);

private:
    void failLater(FetchFailure failure, const QString& reason);

    const FetchLimits limits_;
    const QString plugIns_;
    std::unique_ptr<QObject> underWay_;
};
