// SPDX-License-Identifier: MIT
#include "platform/network/SUNetwork.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTimer>

#include <utility>

namespace {

class SystemProxy : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return systemProxyForQuery(query);
    }
};

QNetworkRequest requestFor(const QUrl& url, const QString& userAgent, const SUFetchLimits& limits) {
    QNetworkRequest request(url);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    request.setSslConfiguration(tls);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(limits.redirects);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute})
        request.setAttribute(attribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setHeader(QNetworkRequest::UserAgentHeader, userAgent);
    // A compressed answer would be unpacked behind the size limit's back.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

SUFailure failureFor(QNetworkReply::NetworkError error) {
    switch (error) {
    case QNetworkReply::SslHandshakeFailedError:
        return SUFailure::Untrusted;
    case QNetworkReply::InsecureRedirectError:
    case QNetworkReply::ProtocolUnknownError:
        return SUFailure::InsecureRedirect;
    case QNetworkReply::TooManyRedirectsError:
        return SUFailure::Unusable;
    default:
        // Up to 199 the network or the proxy failed, beyond that the server has answered.
        return error < QNetworkReply::ContentAccessDenied ? SUFailure::Unreachable : SUFailure::Unusable;
    }
}

/// https only, also after a redirect, with checked certificates, through the system's proxy, without cookies,
/// cache or passwords.
class Fetch : public QObject {
public:
    Fetch(const SUFetchLimits& limits, SUNetwork::Outcome outcome)
        : limits_(limits), outcome_(std::move(outcome)) {
        deadline_.setSingleShot(true);
        connect(&deadline_, &QTimer::timeout, this,
                [this] { fail(SUFailure::TooSlow, QStringLiteral("the answer takes too long")); });
    }

    ~Fetch() override { stop(); }

    void start(const QUrl& url, const QString& userAgent) {
        if (!QSslSocket::supportsSsl())
            return failLater(SUFailure::NoSecurity, QStringLiteral("this system has no TLS"));
        network_.setProxyFactory(new SystemProxy);
        reply_ = network_.get(requestFor(url, userAgent, limits_));
        // The socket is read no faster than readMore() takes, whatever the server sends.
        reply_->setReadBufferSize(limits_.bytes);
        connect(reply_, &QNetworkReply::redirected, this, &Fetch::checkRedirect);
        connect(reply_, &QIODevice::readyRead, this, &Fetch::readMore);
        connect(reply_, &QNetworkReply::finished, this, &Fetch::readEnd);
        deadline_.start(limits_.time);
    }

private:
    void checkRedirect(const QUrl& url) {
        if (SUIsSecure(url))
            Q_EMIT reply_->redirectAllowed();
        else
            fail(SUFailure::InsecureRedirect, QStringLiteral("redirected to %1").arg(url.toString()));
    }

    void readMore() {
        feed_.append(reply_->readAll());
        if (feed_.size() > limits_.bytes)
            fail(SUFailure::Unusable,
                 QStringLiteral("the answer is longer than %1 bytes").arg(limits_.bytes));
    }

    void readEnd() {
        const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (reply_->error() != QNetworkReply::NoError)
            return fail(failureFor(reply_->error()), reply_->errorString());
        if (status != 200)
            return fail(SUFailure::Unusable, QStringLiteral("the server's status is %1").arg(status));
        readMore();
        if (!reply_)
            return;
        stop();
        outcome_.fetched(feed_);
    }

    void fail(SUFailure failure, const QString& reason) {
        stop();
        outcome_.failed(failure, reason);
    }

    void failLater(SUFailure failure, const QString& reason) {
        QMetaObject::invokeMethod(
            this, [this, failure, reason] { fail(failure, reason); }, Qt::QueuedConnection);
    }

    void stop() {
        deadline_.stop();
        if (!reply_)
            return;
        QNetworkReply* reply = std::exchange(reply_, nullptr);
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }

    const SUFetchLimits limits_;
    const SUNetwork::Outcome outcome_;
    QTimer deadline_;
    QNetworkAccessManager network_;
    QNetworkReply* reply_ = nullptr;
    QByteArray feed_;
};

} // namespace

class SUNetworkPlugIn : public QObject, public SUNetwork {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "SUNetwork/1")
    Q_INTERFACES(SUNetwork)

public:
    std::unique_ptr<QObject> fetch(const QUrl& url, const QString& userAgent, const SUFetchLimits& limits,
                                   Outcome outcome) override {
        auto fetch = std::make_unique<Fetch>(limits, std::move(outcome));
        fetch->start(url, userAgent);
        return fetch;
    }
};

#include "SUNetworkPlugIn.moc"
