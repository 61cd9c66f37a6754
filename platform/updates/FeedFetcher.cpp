// SPDX-License-Identifier: MIT
#include "platform/updates/FeedFetcher.h"

#include "platform/bundle/Bundle.h"

#include <QProcess>

#include <utility>

namespace {

/// What curl's exit status stands for.
FetchFailure failureFor(int status) {
    switch (status) {
    case 1: // a scheme that is not allowed; the first address has the right one
        return FetchFailure::InsecureRedirect;
    case 2:  // its libraries can't be set up
    case 4:  // it is built without TLS
    case 77: // there is no list of the authorities to trust
        return FetchFailure::NoSecurity;
    case 5:  // no such proxy
    case 6:  // no such host
    case 7:  // no connection
    case 18: // it broke in the middle
    case 52: // it broke before an answer
    case 55: // it broke while asking
    case 56: // it broke while answering, or the proxy refuses
    case 97: // the proxy fails
        return FetchFailure::Unreachable;
    case 28:
        return FetchFailure::TooSlow;
    case 35: // no TLS session
    case 60: // a certificate that nobody vouches for
    case 83: // another authority than the one to be asked
        return FetchFailure::Untrusted;
    default:
        return FetchFailure::Unusable;
    }
}

QStringList arguments(const QUrl& url, const FetchLimits& limits) {
    const Bundle& bundle = Bundle::main();
    const auto seconds = std::chrono::duration<double>(limits.time).count();
    const auto program =
        QStringLiteral("%1/%2").arg(bundle.infoString(QStringLiteral("CFBundleName")),
                                    bundle.infoString(QStringLiteral("CFBundleShortVersionString")));
    QStringList list{QStringLiteral("--disable"), // the user's own settings of it
                     QStringLiteral("--silent"),       QStringLiteral("--show-error"),
                     QStringLiteral("--fail"),         QStringLiteral("--globoff"),
                     QStringLiteral("--proto"),        QStringLiteral("=https"),
                     QStringLiteral("--tlsv1.2"),      QStringLiteral("--location"),
                     QStringLiteral("--max-redirs"),   QString::number(limits.redirects),
                     QStringLiteral("--max-time"),     QString::number(seconds),
                     QStringLiteral("--max-filesize"), QString::number(limits.bytes),
                     QStringLiteral("--user-agent"),   program,
                     QStringLiteral("--url"),          QString::fromLatin1(url.toEncoded())};
    // As everything else that speaks TLS here; curl has a variable of its own before these.
    for (const auto& [variable, option] :
         {std::pair{"SSL_CERT_FILE", "--cacert"}, std::pair{"SSL_CERT_DIR", "--capath"}}) {
        if (const QString place = qEnvironmentVariable(variable); !place.isEmpty())
            list += {QLatin1String(option), place};
    }
    return list;
}

class Fetch : public QObject {
public:
    Fetch(const FetchLimits& limits, FetchOutcome outcome) : limits_(limits), outcome_(std::move(outcome)) {
        connect(&curl_, &QProcess::readyReadStandardOutput, this, &Fetch::read);
        connect(&curl_, &QProcess::finished, this, &Fetch::end);
        connect(&curl_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                fail(FetchFailure::NoCurl, curl_.errorString());
        });
    }

    ~Fetch() override { stop(); }

    void start(const QUrl& url) {
        if (isSecure(url))
            curl_.start(QStringLiteral("curl"), arguments(url, limits_), QIODevice::ReadOnly);
        else
            fail(FetchFailure::NoFeed, QStringLiteral("the address is not https"));
    }

private:
    void read() {
        feed_ += curl_.readAllStandardOutput();
        // An answer that does not tell its length is not measured by curl.
        if (feed_.size() > limits_.bytes)
            fail(FetchFailure::Unusable,
                 QStringLiteral("the answer is longer than %1 bytes").arg(limits_.bytes));
    }

    void end(int status, QProcess::ExitStatus how) {
        if (status == 0 && how == QProcess::NormalExit)
            return outcome_.fetched(std::exchange(feed_, {}));
        fail(failureFor(status), QString::fromUtf8(curl_.readAllStandardError()).trimmed());
    }

    /// Later, because it may be found at the start.
    void fail(FetchFailure failure, const QString& reason) {
        stop();
        QMetaObject::invokeMethod(
            this, [=, this] { outcome_.failed(failure, reason); }, Qt::QueuedConnection);
    }

    void stop() {
        curl_.disconnect(this);
        curl_.kill();
        curl_.waitForFinished();
    }

    const FetchLimits limits_;
    const FetchOutcome outcome_;
    QProcess curl_;
    QByteArray feed_;
};

} // namespace

std::unique_ptr<QObject> fetchFeed(const QUrl& url, const FetchLimits& limits, FetchOutcome outcome) {
    auto fetch = std::make_unique<Fetch>(limits, std::move(outcome));
    fetch->start(url);
    return fetch;
}
