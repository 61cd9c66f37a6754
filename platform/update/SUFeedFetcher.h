// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

/// Why a check for updates failed, as far as the user is told apart.
enum class SUFailure {
    NoFeed,           ///< there is no address to ask
    NoSecurity,       ///< this system has no TLS
    Unreachable,      ///< no connection, or it broke
    Untrusted,        ///< the server's certificate does not prove that it is the one asked
    InsecureRedirect, ///< sent on to an address that is not https
    TooSlow,          ///< the time limit passed
    Unusable,         ///< an answer, but no feed
};

/// What one answer may cost.
struct SUFetchLimits {
    std::chrono::milliseconds time = std::chrono::seconds(30); ///< from the question to the answer's end
    qint64 bytes = 1 << 20;
    int redirects = 5;
};

/// Fetches one feed, for the update framework's stand-in. Backed by QNetworkAccessManager: https only, also
/// after a redirect, with checked certificates, through the system's proxy, without cookies, cache or
/// passwords.
class SUFeedFetcher : public QObject {
    Q_OBJECT

public:
    explicit SUFeedFetcher(const SUFetchLimits& limits, QObject* parent = nullptr);
    /// Ends what is under way.
    ~SUFeedFetcher() override;

    /// Whether `url` is one that may be asked: https with a host.
    static bool isSecure(const QUrl& url);

    /// Asks `url` once; one of the signals follows, never before this returns.
    void fetch(const QUrl& url);

Q_SIGNALS:
    void fetched(const QByteArray& feed);
    /// `reason` is for the log.
    void failed(SUFailure failure, const QString& reason);

private:
    void checkRedirect(const QUrl& url);
    void readMore();
    void readEnd();
    void fail(SUFailure failure, const QString& reason);
    void failLater(SUFailure failure, const QString& reason);
    void stop();

    SUFetchLimits limits_;
    QTimer deadline_;
    std::unique_ptr<QNetworkAccessManager> network_;
    QNetworkReply* reply_ = nullptr;
    QByteArray feed_;
};
