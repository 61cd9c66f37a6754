// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace ExtraAppleEventManagerUtilities {

/// What one program can tell another.
enum class Event { Quit };

/// Sends an event to the first other process with this bundle identifier, letter case ignored, and does not
/// wait. -50, and nothing is sent, when there is none; -609 when it can't be sent; else 0.
std::int16_t quickSend(Event event, const QString& toProcess);

} // namespace ExtraAppleEventManagerUtilities
