// SPDX-License-Identifier: MIT
#include "platform/tray/XEmbedTray.h"

#include "platform/windows/X11.h"

#include <QGuiApplication>

#include <cstdlib>

namespace {

QByteArray selectionName() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen))
        std::free(host);
    return "_NET_SYSTEM_TRAY_S" + QByteArray::number(screen);
}

} // namespace

XEmbedTray::XEmbedTray(QObject* parent) : QObject(parent) {
    connection_ = X11::connection();
    if (!connection_)
        return;
    manager_ = X11::atom(connection_, "MANAGER", true);
    selection_ = X11::atom(connection_, selectionName().toStdString(), true);
    qGuiApp->installNativeEventFilter(this);
    findOwner();
}

void XEmbedTray::findOwner() {
    const auto cookie = xcb_get_selection_owner(connection_, selection_);
    const auto answer = X11::owned(xcb_get_selection_owner_reply(connection_, cookie, nullptr));
    owner_ = answer ? answer->owner : xcb_window_t{XCB_NONE};
    if (!isThere())
        return;
    // Asks for word of the window's end; an error says that it has come already.
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    const auto selected = xcb_change_window_attributes_checked(connection_, owner_, XCB_CW_EVENT_MASK, &mask);
    if (X11::owned(xcb_request_check(connection_, selected)))
        owner_ = XCB_NONE;
}

bool XEmbedTray::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    const auto* const sent = reinterpret_cast<const xcb_client_message_event_t*>(event);
    const auto* const destroyed = reinterpret_cast<const xcb_destroy_notify_event_t*>(event);
    const int type = event->response_type & 0x7f;
    const bool isNew =
        type == XCB_CLIENT_MESSAGE && sent->type == manager_ && sent->data.data32[1] == selection_;
    const bool isGone = type == XCB_DESTROY_NOTIFY && destroyed->window == owner_;
    if (isNew || isGone) {
        // Later, when Qt has taken note of the event as well.
        QMetaObject::invokeMethod(
            this,
            [this] {
                findOwner();
                Q_EMIT changed();
            },
            Qt::QueuedConnection);
    }
    return false;
}
