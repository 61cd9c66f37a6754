// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <unordered_map>

/// What the files that speak to the X server have in common.
namespace X11 {

/// Qt's connection; null on other platforms.
inline xcb_connection_t* connection() {
    // Not only Qt's X11 platform answers here, but no other has a connection.
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

/// An answer of the X server, which is the caller's to free.
template <typename T>
std::unique_ptr<T, decltype(&std::free)> owned(T* answer) {
    return {answer, &std::free};
}

/// The number that the server has for a name; 0 where it has none, or has none yet and `mayMake` is false.
inline xcb_atom_t atom(xcb_connection_t* connection, const std::string& name, bool mayMake) {
    // The server keeps a name's number; each question would be waited for.
    static std::unordered_map<std::string, xcb_atom_t> known;
    xcb_atom_t& number = known[name];
    if (number == XCB_ATOM_NONE) {
        const auto cookie =
            xcb_intern_atom(connection, !mayMake, static_cast<std::uint16_t>(name.size()), name.data());
        const auto answer = owned(xcb_intern_atom_reply(connection, cookie, nullptr));
        number = answer ? answer->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
    return number;
}

} // namespace X11
