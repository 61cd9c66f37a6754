// SPDX-License-Identifier: MIT
#include "platform/windows/WindowPlatform.h"

#include <QCoreApplication>

namespace {

constexpr char kPlatform[] = "QT_QPA_PLATFORM";

} // namespace

void WindowPlatform::choosePlatform() {
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || !qEnvironmentVariableIsSet("DISPLAY") ||
        qEnvironmentVariableIsSet(kPlatform))
        return;
    qputenv(kPlatform, "xcb;wayland");
    // Runs when Qt has read the variable.
    qAddPreRoutine([] { qunsetenv(kPlatform); });
}
