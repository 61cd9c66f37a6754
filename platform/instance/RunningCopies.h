// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

class QObject;

/// The copies of this program and of its relatives that run in this session, and what they and the desktop
/// ask of this one. A copy owns two names on the session bus: `<identifier>.pid<PID>`, by which others find
/// it, and, while it is the newest, `<identifier>` itself, by which the desktop does. At the path made from
/// its identifier (/com/example/Program) it answers org.freedesktop.Application, and `Quit` of the interface
/// `<identifier>`, which copies call.
///
/// A newer copy takes the identifier's name, and the one that loses it is asked to quit, so that one is left
/// however many start at a time; the newest refuses the quit of an older copy.
namespace RunningCopies {

struct Copy {
    std::uint32_t pid = 0;
    QString identifier; ///< the program's, in reverse-DNS form
};

/// What can be asked of this copy.
struct Requests {
    std::function<void()> activate;                     ///< to be seen
    std::function<bool(const QString& name)> runAction; ///< of the desktop entry; false: there is none such
    std::function<void()> quit;                         ///< by a newer copy
};

/// Makes this process known under `identifier`, and has `requests` answer for as long as `owner` lives.
/// False, with a log line, when there is no session bus or the names can't be had.
bool announce(const QString& identifier, Requests requests, QObject* owner);

/// The copies of other processes that are known, by process ID; none without a session bus.
std::vector<Copy> others();

/// Asks a copy to quit and does not wait; false when there is no session bus.
bool quit(const Copy& copy);

} // namespace RunningCopies
