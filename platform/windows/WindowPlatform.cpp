// SPDX-License-Identifier: MIT
#include "platform/windows/WindowPlatform.h"

#include "platform/windows/LayerShell.h"
#include "platform/windows/X11.h"

#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

constexpr char kPlatform[] = "QT_QPA_PLATFORM";
constexpr char kActivationToken[] = "XDG_ACTIVATION_TOKEN";

/// What the desktop calls this program's start. Qt takes it from the environment, and finishes the start when
/// it shows a window.
QByteArray startupId;

/// Tells all clients, in messages of 20 bytes, that the desktop need wait no longer.
void sendRemoval(xcb_connection_t* connection, const QByteArray& id) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const xcb_window_t sender = xcb_generate_id(connection);
    xcb_create_window(connection, 0, sender, root, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    const QByteArray text = "remove: ID=" + id + '\0';
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 8;
    event.window = sender;
    event.type = X11::atom(connection, "_NET_STARTUP_INFO_BEGIN", true);
    for (qsizetype sent = 0; sent < text.size(); sent += sizeof event.data) {
        const QByteArray part = text.mid(sent, sizeof event.data).leftJustified(sizeof event.data, '\0');
        std::ranges::copy(part, event.data.data8);
        xcb_send_event(connection, 0, root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&event));
        event.type = X11::atom(connection, "_NET_STARTUP_INFO", true);
    }
    xcb_destroy_window(connection, sender);
    xcb_flush(connection);
}

} // namespace

void WindowPlatform::choosePlatform() {
    startupId = qgetenv("DESKTOP_STARTUP_ID");
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || !qEnvironmentVariableIsSet("DISPLAY") ||
        qEnvironmentVariableIsSet(kPlatform))
        return;
    qputenv(kPlatform, LayerShell::isOffered() ? "wayland;xcb" : "xcb;wayland");
    // Runs when Qt has read the variable.
    qAddPreRoutine([] { qunsetenv(kPlatform); });
}

void WindowPlatform::finishStartup() {
    xcb_connection_t* const connection = X11::connection();
    if (!connection)
        return; // Qt's Wayland plugin sees to it
    for (const QByteArray& id : {std::exchange(startupId, {}), qgetenv(kActivationToken)}) {
        if (!id.isEmpty())
            sendRemoval(connection, id);
    }
    qunsetenv(kActivationToken);
}

void WindowPlatform::leaveTaskList(const QWidget* window) {
    xcb_connection_t* const connection = X11::connection();
    if (!connection)
        return;
    // Qt keeps these when it adds its own.
    const xcb_atom_t states[]{X11::atom(connection, "_NET_WM_STATE_SKIP_TASKBAR", true),
                              X11::atom(connection, "_NET_WM_STATE_SKIP_PAGER", true)};
    xcb_change_property(connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window->winId()),
                        X11::atom(connection, "_NET_WM_STATE", true), XCB_ATOM_ATOM, 32, 2, states);
}
