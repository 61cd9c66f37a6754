// SPDX-License-Identifier: MIT
#include "platform/windows/Screen.h"

#include "platform/windows/LayerShell.h"
#include "platform/windows/X11.h"

#include <QCursor>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr std::uint32_t kMostWindows = 4096;

std::vector<std::uint32_t> numbers(xcb_connection_t* connection, xcb_get_property_cookie_t cookie) {
    const auto answer = X11::owned(xcb_get_property_reply(connection, cookie, nullptr));
    if (!answer || answer->format != 32)
        return {};
    const auto* const first = static_cast<const std::uint32_t*>(xcb_get_property_value(answer.get()));
    return {first, first + answer->value_len};
}

/// What all windows reserve at the edges of the desktop, whose size is `desktop`.
std::vector<Screen::Strut> struts(xcb_connection_t* connection, xcb_window_t root, const QSize& desktop) {
    const xcb_atom_t name = X11::atom(connection, "_NET_WM_STRUT_PARTIAL", false);
    const xcb_atom_t list = X11::atom(connection, "_NET_CLIENT_LIST", false);
    const auto windows = numbers(
        connection, xcb_get_property(connection, false, root, list, XCB_ATOM_WINDOW, 0, kMostWindows));
    std::vector<xcb_get_property_cookie_t> questions;
    questions.reserve(windows.size());
    for (const xcb_window_t window : windows)
        questions.push_back(xcb_get_property(connection, false, window, name, XCB_ATOM_CARDINAL, 0, 12));

    std::vector<Screen::Strut> all;
    const int right = desktop.width();
    const int bottom = desktop.height();
    for (const auto question : questions) {
        // The depths at the left, right, top and bottom, then the first and the last pixel of each.
        const std::vector<std::uint32_t> told = numbers(connection, question);
        if (told.size() < 12)
            continue;
        const std::vector<int> n(told.begin(), told.end());
        if (n[0] > 0)
            all.push_back({Qt::LeftEdge, QRect(QPoint(0, n[4]), QPoint(n[0] - 1, n[5]))});
        if (n[1] > 0)
            all.push_back({Qt::RightEdge, QRect(QPoint(right - n[1], n[6]), QPoint(right - 1, n[7]))});
        if (n[2] > 0)
            all.push_back({Qt::TopEdge, QRect(QPoint(n[8], 0), QPoint(n[9], n[2] - 1))});
        if (n[3] > 0)
            all.push_back({Qt::BottomEdge, QRect(QPoint(n[10], bottom - n[3]), QPoint(n[11], bottom - 1))});
    }
    return all;
}

QRect withoutStruts(xcb_connection_t* connection, const QScreen* screen) {
    const QRect whole = screen->geometry();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto desktop =
        X11::owned(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, root), nullptr));
    if (!desktop)
        return whole;
    // A scaled screen keeps its origin.
    const qreal scale = screen->devicePixelRatio();
    const QPoint origin = whole.topLeft();
    const QRect native = Screen::without(struts(connection, root, QSize(desktop->width, desktop->height)),
                                         QRect(origin, whole.size() * scale))
                             .translated(-origin);
    const auto up = [scale](int edge) { return static_cast<int>(std::ceil(edge / scale)); };
    const auto down = [scale](int edge) { return static_cast<int>(std::floor(edge / scale)); };
    return QRect(QPoint(up(native.left()), up(native.top())),
                 QPoint(down(native.right() + 1) - 1, down(native.bottom() + 1) - 1))
        .translated(origin);
}

/// Whether the pointer is on a dock, which window managers may have put into a frame.
bool isPointerOnDock(xcb_connection_t* connection) {
    const xcb_atom_t type = X11::atom(connection, "_NET_WM_WINDOW_TYPE", false);
    const xcb_atom_t dock = X11::atom(connection, "_NET_WM_WINDOW_TYPE_DOCK", false);
    xcb_window_t window = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    while (window != XCB_NONE) {
        const auto types =
            numbers(connection, xcb_get_property(connection, false, window, type, XCB_ATOM_ATOM, 0, 8));
        if (std::ranges::find(types, dock) != types.end())
            return true;
        const auto inside =
            X11::owned(xcb_query_pointer_reply(connection, xcb_query_pointer(connection, window), nullptr));
        window = inside ? inside->child : xcb_window_t{XCB_NONE};
    }
    return false;
}

} // namespace

bool Screen::isPointerOnBar() {
    const QScreen* const screen = QGuiApplication::screenAt(QCursor::pos());
    if (screen && !visibleFrame(screen).contains(QCursor::pos()))
        return true;
    xcb_connection_t* const connection = X11::connection();
    return connection && isPointerOnDock(connection);
}

QRect Screen::without(const std::vector<Strut>& struts, const QRect& screen) {
    QRect rest = screen;
    for (const auto& [edge, taken] : struts) {
        if (!taken.intersects(screen) || taken.contains(screen.center()))
            continue;
        switch (edge) {
        case Qt::LeftEdge:
            rest.setLeft(std::max(rest.left(), taken.right() + 1));
            break;
        case Qt::RightEdge:
            rest.setRight(std::min(rest.right(), taken.left() - 1));
            break;
        case Qt::TopEdge:
            rest.setTop(std::max(rest.top(), taken.bottom() + 1));
            break;
        case Qt::BottomEdge:
            rest.setBottom(std::min(rest.bottom(), taken.top() - 1));
            break;
        }
    }
    return rest;
}

QRect Screen::visibleFrame(const QScreen* screen) {
    xcb_connection_t* const connection = X11::connection();
    if (connection && QGuiApplication::screens().size() > 1)
        return withoutStruts(connection, screen);
    if (LayerShell::isUsed())
        return LayerShell::visibleFrame(screen);
    return screen->availableGeometry() & screen->geometry();
}
