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
    NoPlugIn,         ///< the program's plug-in for the network is missing or damaged
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
    qint64 headerBytes = 64 << 10;                             ///< of each answer's header
    qint64 bytes = 1 << 20;                                    ///< of each answer's body
    int redirects = 10;
};

/// Whether `url` is one that may be asked: https with a host.
inline bool isSecure(const QUrl& url) {
    return url.isValid() && url.scheme() == u"https" && !url.host().isEmpty();
}

/// What fetches feeds, for the update framework's stand-in: a plug-in, because the network's libraries are
/// large and most of the time a program in the tray needs none of them.
class Network {
public:
    /// How a fetch ends: with one call of one of these, never before fetch() has returned.
    struct Outcome {
        std::function<void(const QByteArray& feed)> fetched;
        std::function<void(FetchFailure failure, const QString& reason)> failed; ///< `reason` is for the log
    };

    virtual ~Network() = default;

    /// Asks `url`, which is secure, once, and each address that it is sent on to once. Of the user the
    /// requests tell nothing but `userAgent`. The fetch lives as long as the answer, and ends unheard with
    /// it.
    virtual std::unique_ptr<QObject> fetch(const QUrl& url, const QString& userAgent,
                                           const FetchLimits& limits, Outcome outcome) = 0;
};

Q_DECLARE_INTERFACE(Network, "Network/2")
