// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>

/// Why a check for updates failed, as far as the user is told apart.
enum class FetchFailure {
    NoFeed,           ///< there is no address to ask
    NoCurl,           ///< the program curl is not installed
    NoSecurity,       ///< this system has no TLS, or no list of authorities to trust
    Unreachable,      ///< no connection, or it broke
    Untrusted,        ///< the server's certificate does not prove that it is the one asked
    InsecureRedirect, ///< sent on to an address that is not https
    TooSlow,          ///< the time limit passed
    Unusable,         ///< an answer, but no feed
};

/// What one answer may cost.
struct FetchLimits {
    std::chrono::milliseconds time = std::chrono::seconds(30); ///< from the question to the answer's end
    qint64 bytes = 1 << 20;                                    ///< of the answer's body
    int redirects = 10;
};

/// How a fetch ends: with one call of one of these, never before `fetchFeed` has returned.
struct FetchOutcome {
    std::function<void(const QByteArray& feed)> fetched;
    std::function<void(FetchFailure failure, const QString& reason)> failed; ///< `reason` is for the log
};

/// Whether `url` is one that may be asked: https with a host.
inline bool isSecure(const QUrl& url) {
    return url.isValid() && url.scheme() == u"https" && !url.host().isEmpty();
}

/// Asks `url` once, and each address that it is sent on to once: https only, with checked certificates,
/// through the proxy that the environment names. Of the user the requests tell nothing but the program's name
/// and version. The fetch lives as long as the answer, and ends unheard with it.
///
/// It is a process of its own, curl's: the network's libraries are large, most of the time a program in the
/// tray needs none of them, and what a hostile server can do to them it does not do to this program.
std::unique_ptr<QObject> fetchFeed(const QUrl& url, const FetchLimits& limits, FetchOutcome outcome);
