// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>

class QObject;

/// The desktop's appearance, light or dark, moving or still: the desktop portal's `color-scheme` and
/// `enable-animations`, which Qt 6.4 does not follow by itself.
namespace Appearance {

/// Has the application's colours, and `wantsAnimations`, follow the portal as long as `owner` lives, now and
/// when the user changes the setting. The first answer comes later; without a portal on the session bus, or
/// on `bus`, they stay as they are, and so do colours that Qt has from the desktop and that are dark already.
void followDesktop(QObject* owner, const QDBusConnection& bus = QDBusConnection::sessionBus());

/// Whether the desktop has animations, as far as `followDesktop` has heard; true until then, but never
/// under Sway.
bool wantsAnimations();

} // namespace Appearance
