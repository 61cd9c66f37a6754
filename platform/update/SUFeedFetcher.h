// SPDX-License-Identifier: MIT
#pragma once

#include "platform/network/SUNetwork.h"

/// Fetches one feed, for the update framework's stand-in. Backed by the plug-in SUNetwork, which is loaded
/// for the first fetch.
class SUFeedFetcher : public QObject {
    Q_OBJECT

public:
    /// Takes the plug-in from the folder `plugIns`.
    SUFeedFetcher(const SUFetchLimits& limits, const QString& plugIns, QObject* parent = nullptr);

    /// Asks `url` once; one of the signals follows, never before this returns. Deleting the fetcher ends what
    /// is under way.
    void fetch(const QUrl& url);

Q_SIGNALS:
    void fetched(const QByteArray& feed);
    /// `reason` is for the log.
    void failed(SUFailure failure, const QString& reason);

private:
    void failLater(SUFailure failure, const QString& reason);

    const SUFetchLimits limits_;
    const QString plugIns_;
    std::unique_ptr<QObject> underWay_;
};
