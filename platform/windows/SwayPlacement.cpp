// SPDX-License-Identifier: MIT
#include "platform/windows/SwayPlacement.h"

#include "platform/log/Log.h"
#include "platform/windows/X11.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr char kSocketVariable[] = "SWAYSOCK";

// A message is this mark, the payload's length and the type, each 32 bits in the machine's byte order, and
// the payload. Events are answers that nobody asked for.
const QByteArray kMark("i3-ipc");
constexpr qsizetype kNumberSize = sizeof(quint32);
const qsizetype kHeaderSize = kMark.size() + 2 * kNumberSize;
constexpr quint32 kRunCommand = 0;
constexpr quint32 kSubscribe = 2;
constexpr quint32 kGetTree = 4;
constexpr quint32 kWindowEvent = 0x80000003;
/// No tree is longer; the rest of a stream that is none of Sway's would be waited for in vain.
constexpr quint32 kLongestPayload = 64U << 20;

const QString kRole = QStringLiteral("panel");

quint32 numberAt(const QByteArray& bytes, qsizetype offset) {
    quint32 number = 0;
    std::memcpy(&number, bytes.constData() + offset, sizeof number);
    return number;
}

QByteArray bytesOf(quint32 number) {
    return {reinterpret_cast<const char*>(&number), sizeof number};
}

QRect rectangleOf(const QJsonObject& node) {
    const QJsonObject rectangle = node[u"rect"].toObject();
    return {rectangle[u"x"].toInt(), rectangle[u"y"].toInt(), rectangle[u"width"].toInt(),
            rectangle[u"height"].toInt()};
}

struct Found {
    QJsonObject output;
    QJsonObject workspace;
    QJsonObject window;
};

/// This process's floating window of that title.
std::optional<Found> findWindow(const QJsonObject& tree, const QString& title) {
    const QJsonArray outputs = tree[u"nodes"].toArray();
    for (const auto& output : outputs) {
        const QJsonArray workspaces = output[u"nodes"].toArray();
        for (const auto& workspace : workspaces) {
            const QJsonArray windows = workspace[u"floating_nodes"].toArray();
            for (const auto& window : windows) {
                if (window[u"pid"].toInteger() == QCoreApplication::applicationPid() &&
                    window[u"name"].toString() == title)
                    return Found{output.toObject(), workspace.toObject(), window.toObject()};
            }
        }
    }
    return std::nullopt;
}

/// Along one axis: where the pointer is, of a window that was centred on it as far as the screen allowed.
int pointerAlong(int start, int end, int screenStart, int screenEnd) {
    if (start <= screenStart)
        return screenStart;
    return end >= screenEnd ? screenEnd : (start + end + 1) / 2;
}

SwayPlacement::Surroundings surroundingsOf(const Found& found, int height) {
    const QRect screen = rectangleOf(found.output);
    const QRect frame = rectangleOf(found.window);
    return {
        .pointer = {pointerAlong(frame.left(), frame.right(), screen.left(), screen.right()),
                    pointerAlong(frame.top(), frame.bottom(), screen.top(), screen.bottom())},
        .screen = screen,
        .available = rectangleOf(found.workspace),
        .scale = static_cast<qreal>(frame.height()) / std::max(1, height),
    };
}

/// Has the X server pass on what it was told so far. Sway puts a window whose size changes into the middle
/// again and must not hear of the new size after the new place.
void flushX11() {
    if (xcb_connection_t* const connection = X11::connection())
        X11::owned(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

} // namespace

/// A stream to a local server. Not Qt's: that comes with all of its network library, which nothing else needs
/// here.
class SwayPlacement::Socket {
public:
    using Heard = std::function<void()>;

    explicit Socket(Heard heard) : heard_(std::move(heard)) {}
    ~Socket() { close(); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    bool isOpen() const { return descriptor_ >= 0; }

    /// Whether the server is reached; else errno tells why.
    bool open(const QByteArray& path) {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) {
            errno = ENAMETOOLONG;
            return false;
        }
        std::ranges::copy(path, std::begin(address.sun_path));
        descriptor_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (!isOpen())
            return false;
        if (::connect(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
            const int reason = errno;
            close();
            errno = reason;
            return false;
        }
        notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), heard_);
        return true;
    }

    /// Whether all went out; else errno tells why.
    bool write(QByteArrayView bytes) {
        while (!bytes.isEmpty()) {
            const ssize_t sent =
                ::send(descriptor_, bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
            if (sent < 0 && errno != EINTR)
                return false;
            bytes = bytes.sliced(std::max<ssize_t>(sent, 0));
        }
        return true;
    }

    /// What has come in; nothing at the stream's end or, with the reason in errno, at its break.
    QByteArray read() {
        QByteArray bytes;
        std::array<char, 16384> part{};
        errno = 0;
        for (ssize_t got = 1; got > 0;) {
            got = recv(descriptor_, part.data(), part.size(), MSG_DONTWAIT);
            bytes.append(part.data(), std::max<ssize_t>(got, 0));
        }
        return bytes;
    }

    void close() {
        if (notifier_) { // it may be the notifier that has this called
            notifier_->setEnabled(false);
            notifier_.release()->deleteLater();
        }
        if (isOpen())
            ::close(descriptor_);
        descriptor_ = -1;
    }

private:
    const Heard heard_;
    std::unique_ptr<QSocketNotifier> notifier_;
    int descriptor_ = -1;
};

bool SwayPlacement::isThere() {
    // The variable may be left over from another session.
    return QFileInfo::exists(qEnvironmentVariable(kSocketVariable));
}

SwayPlacement::SwayPlacement(QWidget* window, Chooser chooser)
    : QObject(window), window_(window), chooser_(std::move(chooser)),
      socket_(std::make_unique<Socket>([this] { read(); })) {
    window->setWindowRole(kRole);
}

SwayPlacement::~SwayPlacement() = default;

void SwayPlacement::place() {
    const bool talking = socket_->isOpen();
    if (!talking && !socket_->open(qgetenv(kSocketVariable)))
        return giveUp(qt_error_string());
    if (surroundings_)
        move();
    else if (!talking)
        awaitWindow();
}

void SwayPlacement::awaitWindow() {
    state_ = State::Awaiting;
    // An X11 window comes up at the pointer by this, and is not seen elsewhere before. Sway keeps no such
    // rule twice.
    send(kRunCommand, QStringLiteral("for_window [pid=%1 window_role=\"^%2$\"] move position pointer")
                          .arg(QCoreApplication::applicationPid())
                          .arg(kRole));
    send(kSubscribe, QStringLiteral("[\"window\"]"));
}

void SwayPlacement::send(quint32 type, const QString& payload) {
    const QByteArray bytes = payload.toUtf8();
    if (!socket_->isOpen())
        return;
    ++unanswered_;
    if (!socket_->write(kMark + bytesOf(static_cast<quint32>(bytes.size())) + bytesOf(type) + bytes))
        giveUp(qt_error_string());
}

void SwayPlacement::runCommand(const QString& command) {
    send(kRunCommand, QStringLiteral("[con_id=%1] %2").arg(identifier_).arg(command));
}

void SwayPlacement::read() {
    const QByteArray bytes = socket_->read();
    if (bytes.isEmpty() && errno != EAGAIN)
        return giveUp(errno == 0 ? QStringLiteral("it hung up") : qt_error_string());
    received_ += bytes;
    while (received_.size() >= kHeaderSize) {
        const quint32 length = numberAt(received_, kMark.size());
        if (!received_.startsWith(kMark) || length > kLongestPayload) {
            giveUp(QStringLiteral("what its socket says is none of Sway's messages"));
            return;
        }
        if (received_.size() < kHeaderSize + length)
            return;
        const quint32 type = numberAt(received_, kMark.size() + kNumberSize);
        const QByteArray payload = received_.mid(kHeaderSize, length);
        received_.remove(0, kHeaderSize + length);
        receive(type, QJsonDocument::fromJson(payload));
    }
}

void SwayPlacement::receive(quint32 type, const QJsonDocument& message) {
    if (type == kWindowEvent) {
        if (state_ == State::Awaiting && message[u"change"].toString() == u"new")
            send(kGetTree);
        return;
    }
    --unanswered_;
    if (type == kSubscribe)
        send(kGetTree); // the window may be there already
    else if (type == kGetTree)
        receiveTree(message.object());
    else if (type == kRunCommand && message[0][u"success"].toBool())
        commandDone();
    else
        giveUp(message[0][u"error"].toString());
}

void SwayPlacement::receiveTree(const QJsonObject& tree) {
    const std::optional<Found> found = findWindow(tree, window_->windowTitle());
    if (!found)
        return;
    if (state_ == State::Awaiting) {
        state_ = State::GoingToPointer;
        identifier_ = found->window[u"id"].toInteger();
        runCommand(QStringLiteral("move position pointer"));
    } else if (state_ == State::AtPointer) {
        state_ = State::Placed;
        surroundings_ = surroundingsOf(*found, window_->height());
        move();
    }
}

void SwayPlacement::commandDone() {
    if (state_ == State::GoingToPointer) {
        state_ = State::AtPointer;
        send(kGetTree);
    } else if (state_ == State::Placed && unanswered_ == 0) {
        hangUp();
    }
}

void SwayPlacement::move() {
    const QPoint place = chooser_(*surroundings_);
    flushX11();
    runCommand(QStringLiteral("move absolute position %1 %2").arg(place.x()).arg(place.y()));
}

void SwayPlacement::hangUp() {
    socket_->close();
    received_.clear();
    unanswered_ = 0;
}

void SwayPlacement::giveUp(const QString& reason) {
    logLine(QStringLiteral("Sway does not place the panel: %1").arg(reason));
    hangUp();
}
