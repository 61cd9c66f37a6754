// SPDX-License-Identifier: MIT
#pragma once

#include "platform/updates/network/Network.h"

/// Asks `url` once and tells the outcome, never before this returns, by the plug-in Network in the folder
/// `plugIns`, which is loaded for the first fetch. The fetch lives as long as the answer, and ends unheard
/// with it.
std::unique_ptr<QObject> fetchFeed(const QUrl& url, const FetchLimits& limits, const QString& plugIns,
                                   Network::Outcome outcome);
