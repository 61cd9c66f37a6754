// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

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

} // namespace X11
