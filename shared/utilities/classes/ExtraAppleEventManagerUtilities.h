// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/AppleEvents.h"

#include <QString>

namespace ExtraAppleEventManagerUtilities {

/// Sends an event of class 'aevt' to the first other process with this bundle identifier, letter case
/// ignored, and does not wait. paramErr, and nothing is sent, when there is none; else the send's status.
std::int16_t quickSend(AEEventID eventID, const QString& toProcess);

} // namespace ExtraAppleEventManagerUtilities
