// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <xcb/xcb.h>

/// Tells whether an XEmbed tray is on the X display, and when one comes or goes, by the X server's own
/// messages. On other platforms there never is one.
class XEmbedTray : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    explicit XEmbedTray(QObject* parent = nullptr);

    bool isThere() const { return owner_ != XCB_NONE; }

Q_SIGNALS:
    /// A tray came, went or took another's place.
    void changed();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
    void findOwner();

    xcb_connection_t* connection_ = nullptr;
    xcb_atom_t manager_ = XCB_ATOM_NONE;
    /// Whoever owns this selection is the tray.
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_window_t owner_ = XCB_NONE;
};
