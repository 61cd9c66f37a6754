// SPDX-License-Identifier: MIT
#include "platform/update/SUFeedFetcher.h"

#include "platform/foundation/NSBundle.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QSslSocket>

#include <utility>

namespace {

class SystemProxy : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return systemProxyForQuery(query);
    }
};

QNetworkRequest requestFor(const QUrl& url, const SUFetchLimits& limits) {
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
    const NSBundle& bundle = NSBundle::mainBundle();
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      QStringLiteral("%1/%2").arg(bundle.infoString(QStringLiteral("CFBundleName")),
                                                  bundle.infoString(QStringLiteral("CFBundleVersion"))));
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

} // namespace

SUFeedFetcher::SUFeedFetcher(const SUFetchLimits& limits, QObject* parent)
    : QObject(parent), limits_(limits) {
    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this,
            [this] { fail(SUFailure::TooSlow, QStringLiteral("the answer takes too long")); });
}

SUFeedFetcher::~SUFeedFetcher() {
    stop();
}

bool SUFeedFetcher::isSecure(const QUrl& url) {
    return url.isValid() && url.scheme() == u"https" && !url.host().isEmpty();
}

void SUFeedFetcher::fetch(const QUrl& url) {
    if (!isSecure(url))
        return failLater(SUFailure::NoFeed, QStringLiteral("the address is not https"));
    if (!QSslSocket::supportsSsl())
        return failLater(SUFailure::NoSecurity, QStringLiteral("this system has no TLS"));
    network_ = std::make_unique<QNetworkAccessManager>();
    network_->setProxyFactory(new SystemProxy);
    reply_ = network_->get(requestFor(url, limits_));
    // The socket is read no faster than readMore() takes, whatever the server sends.
    reply_->setReadBufferSize(limits_.bytes);
    connect(reply_, &QNetworkReply::redirected, this, &SUFeedFetcher::checkRedirect);
    connect(reply_, &QIODevice::readyRead, this, &SUFeedFetcher::readMore);
    connect(reply_, &QNetworkReply::finished, this, &SUFeedFetcher::readEnd);
    deadline_.start(limits_.time);
}

void SUFeedFetcher::checkRedirect(const QUrl& url) {
    if (isSecure(url))
        Q_EMIT reply_->redirectAllowed();
    else
        fail(SUFailure::InsecureRedirect, QStringLiteral("redirected to %1").arg(url.toString()));
}

void SUFeedFetcher::readMore() {
    feed_.append(reply_->readAll());
    if (feed_.size() > limits_.bytes)
        fail(SUFailure::Unusable, QStringLiteral("the answer is longer than %1 bytes").arg(limits_.bytes));
}

void SUFeedFetcher::readEnd() {
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply_->error() != QNetworkReply::NoError)
        return fail(failureFor(reply_->error()), reply_->errorString());
    if (status != 200)
        return fail(SUFailure::Unusable, QStringLiteral("the server's status is %1").arg(status));
    readMore();
    if (!reply_)
        return;
    stop();
    Q_EMIT fetched(std::exchange(feed_, {}));
}

void SUFeedFetcher::fail(SUFailure failure, const QString& reason) {
    stop();
    Q_EMIT failed(failure, reason);
}

void SUFeedFetcher::failLater(SUFailure failure, const QString& reason) {
    QMetaObject::invokeMethod(
        this, [this, failure, reason] { fail(failure, reason); }, Qt::QueuedConnection);
}

void SUFeedFetcher::stop() {
    deadline_.stop();
    if (!reply_)
        return;
    QNetworkReply* reply = std::exchange(reply_, nullptr);
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}
