// SPDX-License-Identifier: MIT
#include "platform/updates/network/Network.h"

#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include <curl/curl.h>

namespace {

struct EasyCleanup {
    void operator()(CURL* transfer) const { curl_easy_cleanup(transfer); }
};
struct MultiCleanup {
    void operator()(CURLM* transfers) const { curl_multi_cleanup(transfers); }
};

struct DeleteLater {
    void operator()(QSocketNotifier* notifier) const {
        // The socket may be closed, and its number another's, before the event loop comes to delete it.
        notifier->setEnabled(false);
        notifier->deleteLater();
    }
};
using Notifier = std::unique_ptr<QSocketNotifier, DeleteLater>;

constexpr auto kTooLarge = static_cast<CURLcode>(100); ///< CURLE_TOO_LARGE, since libcurl 8.6

struct Failure {
    FetchFailure kind;
    QString reason;
};

FetchFailure failureFor(CURLcode code) {
    switch (code) {
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_ISSUER_ERROR:
        return FetchFailure::Untrusted;
    case CURLE_SSL_CACERT_BADFILE: // there is no list of the authorities to trust
    case CURLE_NOT_BUILT_IN:
    case CURLE_FAILED_INIT:
        return FetchFailure::NoSecurity;
    case CURLE_COULDNT_RESOLVE_PROXY:
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_CONNECT:
    case CURLE_PROXY:
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_OPERATION_TIMEDOUT:
        return FetchFailure::Unreachable;
    default:
        return FetchFailure::Unusable;
    }
}

/// https only, also after a redirect, with checked certificates, through the proxy that the environment
/// names, without cookies, cache or passwords.
class Fetch : public QObject {
public:
    Fetch(const FetchLimits& limits, Network::Outcome outcome)
        : limits_(limits), outcome_(std::move(outcome)) {
        deadline_.setSingleShot(true);
        connect(&deadline_, &QTimer::timeout, this, [this] {
            fail({FetchFailure::TooSlow, QStringLiteral("the answer takes too long")});
        });
        wait_.setSingleShot(true);
        connect(&wait_, &QTimer::timeout, this, [this] { act(CURL_SOCKET_TIMEOUT, 0); });
    }

    ~Fetch() override { stop(); }

    void start(const QUrl& url, const QString& userAgent) {
        deadline_.start(limits_.time);
        transfers_.reset(curl_multi_init());
        transfer_.reset(curl_easy_init());
        if (!transfers_ || !transfer_) {
            QMetaObject::invokeMethod(
                this,
                [this] {
                    fail({FetchFailure::NoSecurity, QStringLiteral("libcurl can't be set up")});
                },
                Qt::QueuedConnection);
            return;
        }
        curl_multi_setopt(transfers_.get(), CURLMOPT_SOCKETFUNCTION, &Fetch::socketChanged);
        curl_multi_setopt(transfers_.get(), CURLMOPT_SOCKETDATA, this);
        curl_multi_setopt(transfers_.get(), CURLMOPT_TIMERFUNCTION, &Fetch::waitChanged);
        curl_multi_setopt(transfers_.get(), CURLMOPT_TIMERDATA, this);
        setUp(userAgent.toUtf8());
        ask(url);
    }

private:
    void setUp(const QByteArray& userAgent) {
        CURL* const transfer = transfer_.get();
        curl_easy_setopt(transfer, CURLOPT_PROTOCOLS_STR, "https");
        curl_easy_setopt(transfer, CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
        curl_easy_setopt(transfer, CURLOPT_SSLVERSION, long{CURL_SSLVERSION_TLSv1_2});
        curl_easy_setopt(transfer, CURLOPT_SSL_VERIFYPEER, 1L);
        curl_easy_setopt(transfer, CURLOPT_SSL_VERIFYHOST, 2L);
        // As everything else that speaks TLS here; libcurl itself leaves these to its callers.
        if (const QByteArray file = qgetenv("SSL_CERT_FILE"); !file.isEmpty())
            curl_easy_setopt(transfer, CURLOPT_CAINFO, file.constData());
        if (const QByteArray folder = qgetenv("SSL_CERT_DIR"); !folder.isEmpty())
            curl_easy_setopt(transfer, CURLOPT_CAPATH, folder.constData());
        curl_easy_setopt(transfer, CURLOPT_DISALLOW_USERNAME_IN_URL, 1L);
        curl_easy_setopt(transfer, CURLOPT_USERAGENT, userAgent.constData());
        curl_easy_setopt(transfer, CURLOPT_NOSIGNAL, 1L);
        // Whoever cancels does not wait for a name server.
        curl_easy_setopt(transfer, CURLOPT_QUICK_EXIT, 1L);
        curl_easy_setopt(transfer, CURLOPT_ERRORBUFFER, message_.data());
        curl_easy_setopt(transfer, CURLOPT_HEADERFUNCTION, &Fetch::takeHeader);
        curl_easy_setopt(transfer, CURLOPT_HEADERDATA, this);
        curl_easy_setopt(transfer, CURLOPT_WRITEFUNCTION, &Fetch::takeBody);
        curl_easy_setopt(transfer, CURLOPT_WRITEDATA, this);
    }

    void ask(const QUrl& url) {
        headerSize_ = 0;
        feed_.clear();
        message_[0] = '\0';
        curl_easy_setopt(transfer_.get(), CURLOPT_URL, url.toEncoded().constData());
        curl_multi_add_handle(transfers_.get(), transfer_.get());
    }

    static int socketChanged(CURL*, curl_socket_t socket, int events, void* self, void*) {
        static_cast<Fetch*>(self)->watch(socket, events);
        return 0;
    }

    static int waitChanged(CURLM*, long milliseconds, void* self) {
        QTimer& wait = static_cast<Fetch*>(self)->wait_;
        if (milliseconds < 0)
            wait.stop();
        else
            wait.start(std::chrono::milliseconds(milliseconds));
        return 0;
    }

    static std::size_t takeHeader(char* bytes, std::size_t, std::size_t count, void* self) {
        return static_cast<Fetch*>(self)->readHeader(QByteArrayView(bytes, qsizetype(count))) ? count : 0;
    }

    static std::size_t takeBody(char* bytes, std::size_t, std::size_t count, void* self) {
        return static_cast<Fetch*>(self)->readBody(QByteArrayView(bytes, qsizetype(count))) ? count : 0;
    }

    void watch(curl_socket_t socket, int events) {
        sockets_.erase(socket);
        if (events == CURL_POLL_REMOVE)
            return;
        if (events != CURL_POLL_OUT)
            sockets_[socket].push_back(notifier(socket, QSocketNotifier::Read, CURL_CSELECT_IN));
        if (events != CURL_POLL_IN)
            sockets_[socket].push_back(notifier(socket, QSocketNotifier::Write, CURL_CSELECT_OUT));
    }

    Notifier notifier(curl_socket_t socket, QSocketNotifier::Type type, int event) {
        Notifier notifier(new QSocketNotifier(socket, type));
        connect(notifier.get(), &QSocketNotifier::activated, this,
                [this, socket, event] { act(socket, event); });
        return notifier;
    }

    /// One line of an answer's header, a proxy's too.
    bool readHeader(QByteArrayView line) {
        headerSize_ += line.size();
        if (headerSize_ > limits_.headerBytes)
            return refuse(
                QStringLiteral("the answer's header is longer than %1 bytes").arg(limits_.headerBytes));
        return true;
    }

    bool readBody(QByteArrayView piece) {
        feed_.append(piece);
        return feed_.size() <= limits_.bytes ||
               refuse(QStringLiteral("the answer is longer than %1 bytes").arg(limits_.bytes));
    }

    /// Notes why the transfer is about to end; always false.
    bool refuse(const QString& reason) {
        refusal_ = {FetchFailure::Unusable, reason};
        return false;
    }

    void act(curl_socket_t socket, int event) {
        int running = 0;
        int left = 0;
        curl_multi_socket_action(transfers_.get(), socket, event, &running);
        if (const CURLMsg* ended = curl_multi_info_read(transfers_.get(), &left))
            end(ended->data.result);
    }

    void end(CURLcode code) {
        if (refusal_)
            return fail(*refusal_);
        if (code != CURLE_OK) {
            // What libcurl says when a single line is longer than it keeps.
            if (code == CURLE_OUT_OF_MEMORY || code == kTooLarge)
                return fail(
                    {FetchFailure::Unusable, QStringLiteral("a line of the answer's header has no end")});
            const char* const told = message_[0] != '\0' ? message_.data() : curl_easy_strerror(code);
            return fail({failureFor(code), QString::fromUtf8(told)});
        }
        long status = 0;
        curl_easy_getinfo(transfer_.get(), CURLINFO_RESPONSE_CODE, &status);
        const char* redirect = nullptr;
        curl_easy_getinfo(transfer_.get(), CURLINFO_REDIRECT_URL, &redirect);
        if (redirect)
            return followTo(QUrl::fromEncoded(redirect));
        if (status != 200)
            return fail({FetchFailure::Unusable, QStringLiteral("the server's status is %1").arg(status)});
        const QByteArray feed = std::exchange(feed_, {});
        stop();
        outcome_.fetched(feed);
    }

    void followTo(const QUrl& url) {
        if (!isSecure(url))
            return fail(
                {FetchFailure::InsecureRedirect, QStringLiteral("redirected to %1").arg(url.toString())});
        if (++redirects_ > limits_.redirects)
            return fail({FetchFailure::Unusable,
                         QStringLiteral("redirected more than %1 times").arg(limits_.redirects)});
        curl_multi_remove_handle(transfers_.get(), transfer_.get());
        ask(url);
    }

    void fail(const Failure& failure) {
        stop();
        outcome_.failed(failure.kind, failure.reason);
    }

    void stop() {
        deadline_.stop();
        if (transfers_ && transfer_)
            curl_multi_remove_handle(transfers_.get(), transfer_.get());
        sockets_.clear(); // before what they watch is closed
        transfer_.reset();
        transfers_.reset();
        wait_.stop();
    }

    const FetchLimits limits_;
    const Network::Outcome outcome_;
    QTimer deadline_;
    QTimer wait_; ///< libcurl's own
    std::map<curl_socket_t, std::vector<Notifier>> sockets_;
    std::unique_ptr<CURLM, MultiCleanup> transfers_;
    std::unique_ptr<CURL, EasyCleanup> transfer_;
    std::array<char, CURL_ERROR_SIZE> message_{};
    std::optional<Failure> refusal_;
    int redirects_ = 0;
    qsizetype headerSize_ = 0;
    QByteArray feed_;
};

} // namespace

class NetworkPlugIn : public QObject, public Network {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Network/2")
    Q_INTERFACES(Network)

public:
    NetworkPlugIn() { curl_global_init(CURL_GLOBAL_DEFAULT); }

    std::unique_ptr<QObject> fetch(const QUrl& url, const QString& userAgent, const FetchLimits& limits,
                                   Outcome outcome) override {
        auto fetch = std::make_unique<Fetch>(limits, std::move(outcome));
        fetch->start(url, userAgent);
        return fetch;
    }
};

#include "NetworkPlugIn.moc"
