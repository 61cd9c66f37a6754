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
#include <chrono>
#include <cstring>

#include <gio/gio.h>
#include <gio/gunixsocketaddress.h>

namespace {

constexpr char kSocketVariable[] = "SWAYSOCK";

// A message is this mark, the payload's length and the type, each 32 bits in the machine's byte order, and
// the payload.
const QByteArray kMark("i3-ipc");
constexpr quint32 kRunCommand = 0;
constexpr quint32 kGetTree = 4;
/// No tree is longer; the rest of a stream that is none of Sway's would be waited for in vain.
constexpr quint32 kLongestPayload = 64U << 20;
constexpr guint kAnswerPatience = 1; // seconds

constexpr std::chrono::milliseconds kLook{10};
constexpr int kMostLooks = 200;

const QString kRole = QStringLiteral("panel");

QByteArray bytesOf(quint32 number) {
    return {reinterpret_cast<const char*>(&number), sizeof number};
}

/// So many bytes, or nothing.
QByteArray receive(GIOStream* stream, qsizetype size, GError** error) {
    QByteArray bytes(size, '\0');
    gsize read = 0;
    g_input_stream_read_all(g_io_stream_get_input_stream(stream), bytes.data(), static_cast<gsize>(size),
                            &read, nullptr, error);
    return read == static_cast<gsize>(size) ? bytes : QByteArray();
}

/// Sway's answer, for which the program waits: it comes within milliseconds. Where there is none, an empty
/// one, and the reason in `error`, if it is known. Not by Qt's sockets, which come with all of its network
/// library.
QJsonDocument ask(quint32 type, const QString& payload, GError** error) {
    const QByteArray bytes = payload.toUtf8();
    const QByteArray message = kMark + bytesOf(static_cast<quint32>(bytes.size())) + bytesOf(type) + bytes;
    g_autoptr(GSocketClient) client = g_socket_client_new();
    g_socket_client_set_timeout(client, kAnswerPatience);
    g_socket_client_set_enable_proxy(client, FALSE);
    g_autoptr(GSocketAddress) address = g_unix_socket_address_new(qgetenv(kSocketVariable).constData());
    g_autoptr(GSocketConnection) connection =
        g_socket_client_connect(client, G_SOCKET_CONNECTABLE(address), nullptr, error);
    auto* const stream = reinterpret_cast<GIOStream*>(connection);
    if (!stream || !g_output_stream_write_all(g_io_stream_get_output_stream(stream), message.constData(),
                                              static_cast<gsize>(message.size()), nullptr, nullptr, error))
        return {};
    quint32 length = 0;
    const QByteArray header = receive(stream, kMark.size() + 2 * qsizetype{sizeof length}, error);
    if (!header.startsWith(kMark))
        return {};
    std::memcpy(&length, header.constData() + kMark.size(), sizeof length);
    return length > kLongestPayload ? QJsonDocument()
                                    : QJsonDocument::fromJson(receive(stream, length, error));
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
std::optional<Found> windowNamed(const QString& title) {
    const QJsonArray outputs = ask(kGetTree, {}, nullptr)[u"nodes"].toArray();
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

bool SwayPlacement::isThere() {
    // The variable may be left over from another session.
    return QFileInfo::exists(qEnvironmentVariable(kSocketVariable));
}

SwayPlacement::SwayPlacement(QWidget* window, Chooser chooser)
    : QObject(window), window_(window), chooser_(std::move(chooser)) {
    window->setWindowRole(kRole);
    search_.callOnTimeout(this, &SwayPlacement::findWindow);
}

void SwayPlacement::place() {
    if (surroundings_) {
        move();
    } else if (!search_.isActive()) {
        looks_ = 0;
        // An X11 window comes up at the pointer by this, and is not seen elsewhere before. Sway keeps no such
        // rule twice.
        if (run(QStringLiteral("for_window [pid=%1 window_role=\"^%2$\"] move position pointer")
                    .arg(QCoreApplication::applicationPid())
                    .arg(kRole)))
            search_.start(kLook);
    }
}

/// Looks whether the window has come up, and places it if so.
void SwayPlacement::findWindow() {
    auto found = windowNamed(window_->windowTitle());
    if (!found) {
        if (++looks_ == kMostLooks)
            giveUp(QStringLiteral("it does not show the window"));
        return;
    }
    search_.stop();
    identifier_ = found->window[u"id"].toInteger();
    // This also tells where the pointer is.
    if (!run(QStringLiteral("[con_id=%1] move position pointer").arg(identifier_)))
        return;
    found = windowNamed(window_->windowTitle());
    if (!found)
        return;
    surroundings_ = surroundingsOf(*found, window_->height());
    move();
}

void SwayPlacement::move() {
    const QPoint place = chooser_(*surroundings_);
    flushX11();
    run(QStringLiteral("[con_id=%1] move absolute position %2 %3")
            .arg(identifier_)
            .arg(place.x())
            .arg(place.y()));
}

/// Whether Sway obeys; else what it says is logged.
bool SwayPlacement::run(const QString& command) {
    g_autoptr(GError) error = nullptr;
    const QJsonDocument answer = ask(kRunCommand, command, &error);
    if (answer[0][u"success"].toBool())
        return true;
    const QString said = answer[0][u"error"].toString();
    giveUp(!said.isEmpty() ? said
           : error         ? QString::fromUtf8(error->message)
                           : QStringLiteral("its answer is none"));
    return false;
}

void SwayPlacement::giveUp(const QString& reason) {
    search_.stop();
    logLine(QStringLiteral("Sway does not place the panel: %1").arg(reason));
}
