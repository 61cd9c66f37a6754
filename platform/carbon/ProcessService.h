// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/AppleEvents.h"
#include "platform/carbon/Processes.h"

#include <vector>

/// What stands behind the process list on the D-Bus session bus. A copy owns two names: `<bundle
/// identifier>.pid<PID>`, by which others find it, and, while it is the newest, `<bundle identifier>` itself,
/// by which the desktop does. At the path made from its identifier (/com/example/Program) it answers
/// `<bundle identifier>.AppleEvents`, which takes flattened events, and `org.freedesktop.Application`, whose
/// calls become events: Activate 'rapp', Open 'odoc', ActivateAction 'actn'.
///
/// A newer copy takes the identifier's name, and the one that loses it gets the quit event, so that one is
/// left however many start at a time; the newest refuses a quit event that an older copy sends.
namespace ProcessService {

struct Copy {
    std::uint32_t pid;
    QString bundleIdentifier;
};

/// The copies that have a name on the bus, in no order; none without a session bus.
std::vector<Copy> announcedCopies();

/// Gives this process its names and starts to answer; see announceProcess().
bool announce(const QString& bundleIdentifier);

/// Sends an event to another copy. With `reply` waits for its answer, at most for `timeOutInTicks`
/// (kAEDefaultTimeout: the bus's own limit); see AESendMessage().
OSStatus send(const AppleEvent& event, const ProcessSerialNumber& target, AppleEvent* reply,
              long timeOutInTicks);

} // namespace ProcessService
