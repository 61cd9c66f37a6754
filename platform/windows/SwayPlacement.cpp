// SPDX-License-Identifier: MIT
#include "platform/windows/SwayPlacement.h"

#include "platform/log/Log.h"
#include "platform/windows/X11.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWidget>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <string_view>
#include <utility>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr char kSocketVariable[] = "SWAYSOCK";

// A message is this mark, the payload's length and the type, each 32 bits in the machine's byte order, and
// the payload.
constexpr std::string_view kMark("i3-ipc");
struct Numbers {
    quint32 length;
    quint32 type;
};
constexpr quint32 kRunCommand = 0;
constexpr quint32 kGetTree = 4;
/// No tree is longer; the rest of a stream that is none of Sway's would be waited for in vain.
constexpr quint32 kLongestPayload = 64U << 20;
constexpr std::chrono::seconds kPatience{1}; ///< for each answer
constexpr std::chrono::milliseconds kBetweenLooks{20};
constexpr int kMostLooks = 100;

const QString kRole = QStringLiteral("panel");

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

/// All of `size` bytes that come in; else nothing, and errno tells why.
std::optional<QByteArray> receive(int socket, std::size_t size) {
    QByteArray bytes(static_cast<qsizetype>(size), Qt::Uninitialized);
    errno = EPIPE; // the stream's end sets none
    const ssize_t got = recv(socket, bytes.data(), size, MSG_WAITALL);
    return got == static_cast<ssize_t>(size) ? std::optional(bytes) : std::nullopt;
}

/// What the server at `path` answers to a message; else nothing, and errno tells why. Qt's own sockets would
/// bring all of its network library.
std::optional<QByteArray> answerOf(int socket, const QByteArray& path, quint32 type,
                                   const QByteArray& payload) {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const timeval patience{.tv_sec = kPatience.count(), .tv_usec = 0};
    Numbers numbers{static_cast<quint32>(payload.size()), type};
    const QByteArray message = QByteArray(kMark.data(), kMark.size()) +
                               QByteArray(reinterpret_cast<const char*>(&numbers), sizeof numbers) + payload;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) {
        errno = ENAMETOOLONG;
        return std::nullopt;
    }
    std::ranges::copy(path, std::begin(address.sun_path));
    for (const int option : {SO_RCVTIMEO, SO_SNDTIMEO})
        setsockopt(socket, SOL_SOCKET, option, &patience, sizeof patience);
    if (connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        send(socket, message.constData(), static_cast<std::size_t>(message.size()), MSG_NOSIGNAL) !=
            message.size())
        return std::nullopt;
    const auto header = receive(socket, kMark.size() + sizeof numbers);
    if (!header)
        return std::nullopt;
    std::memcpy(&numbers, header->constData() + kMark.size(), sizeof numbers);
    if (!header->startsWith(kMark.data()) || numbers.length > kLongestPayload) {
        errno = EPROTO;
        return std::nullopt;
    }
    return receive(socket, numbers.length);
}

} // namespace

bool SwayPlacement::isThere() {
    // The variable may be left over from another session.
    return QFileInfo::exists(qEnvironmentVariable(kSocketVariable));
}

SwayPlacement::SwayPlacement(QWidget* window, Chooser chooser)
    : QObject(window), window_(window), chooser_(std::move(chooser)) {
    window->setWindowRole(kRole);
    untilThere_.setInterval(kBetweenLooks);
    connect(&untilThere_, &QTimer::timeout, this, &SwayPlacement::lookForWindow);
}

void SwayPlacement::place() {
    if (surroundings_)
        return move();
    // An X11 window comes up at the pointer by this, and is not seen elsewhere before. Sway keeps no such
    // rule twice.
    const QString rule = QStringLiteral("for_window [pid=%1 window_role=\"^%2$\"] move position pointer");
    if (!ask(kRunCommand, rule.arg(QCoreApplication::applicationPid()).arg(kRole)).isNull())
        untilThere_.start();
}

void SwayPlacement::lookForWindow() {
    const QJsonDocument tree = ask(kGetTree);
    const std::optional<Found> found = findWindow(tree.object(), window_->windowTitle());
    if (!found && !tree.isNull() && ++looks_ < kMostLooks)
        return;
    untilThere_.stop();
    if (!found)
        return;
    identifier_ = found->window[u"id"].toInteger();
    goToPointer();
}

/// Sway tells the pointer's place by putting the window there.
void SwayPlacement::goToPointer() {
    runCommand(QStringLiteral("move position pointer"));
    if (const auto found = findWindow(ask(kGetTree).object(), window_->windowTitle())) {
        surroundings_ = surroundingsOf(*found, window_->height());
        move();
    }
}

void SwayPlacement::move() {
    const QPoint place = chooser_(*surroundings_);
    flushX11();
    runCommand(QStringLiteral("move absolute position %1 %2").arg(place.x()).arg(place.y()));
}

void SwayPlacement::runCommand(const QString& command) {
    ask(kRunCommand, QStringLiteral("[con_id=%1] %2").arg(identifier_).arg(command));
}

QJsonDocument SwayPlacement::ask(quint32 type, const QString& payload) {
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto answer = answerOf(socket, qgetenv(kSocketVariable), type, payload.toUtf8());
    const QString reason = answer ? QStringLiteral("its answer can't be understood") : qt_error_string();
    close(socket);
    const auto message = answer ? QJsonDocument::fromJson(*answer) : QJsonDocument();
    if (message.isNull())
        logLine(QStringLiteral("Sway does not place the panel: %1").arg(reason));
    else if (type == kRunCommand && !message[0][u"success"].toBool())
        logLine(QStringLiteral("Sway does not place the panel: %1").arg(message[0][u"error"].toString()));
    return message;
}
