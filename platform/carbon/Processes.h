// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/MacTypes.h"

#include <QVariantMap>

#include <compare>

/// Stands for the Process Manager: the running copies that can be found, brought to the front and told to
/// quit, and the agents (Agents.h) that run. Backed by names on the D-Bus session bus: every copy owns
/// `<bundle identifier>.pid<PID>`. Without a session bus the list holds the running process and its agents.

struct ProcessSerialNumber {
    std::uint32_t highLongOfPSN = 0; ///< 0, except for agents
    std::uint32_t lowLongOfPSN = 0;  ///< the process ID, or the agent's number

    friend auto operator<=>(const ProcessSerialNumber&, const ProcessSerialNumber&) = default;
};

/// {0, 0}: before the first process of a walk.
constexpr ProcessSerialNumber kNoProcess{};

constexpr OSStatus procNotFound = -600;

/// The creator signature of an application that has none.
constexpr OSType kUnknownSignature = fourCharCode("????");

struct ProcessInfoRec {
    ProcessSerialNumber processNumber;
    OSType processSignature = kUnknownSignature;
};

/// The process after `*process` in the list's order, agents last; `procNotFound` at its end.
OSStatus GetNextProcess(ProcessSerialNumber* process);

/// The creator signature of a process; `procNotFound` for one that is gone.
OSStatus GetProcessInformation(const ProcessSerialNumber& process, ProcessInfoRec* information);

/// "CFBundleIdentifier" (QString) and "pid" (int) of a process; empty for one that is gone. An agent has no
/// bundle identifier.
QVariantMap ProcessInformationCopyDictionary(const ProcessSerialNumber& process);

OSStatus GetCurrentProcess(ProcessSerialNumber* process);

/// Raises the windows of the running process; another process can't be raised (`paramErr`).
OSStatus SetFrontProcess(const ProcessSerialNumber& process);

/// Makes the running process known to others under its bundle identifier, and answers the events and the
/// desktop's requests that then come for it (ProcessService.h). False, with a log line, when there is no
/// session bus or the name can't be had.
bool announceProcess(const QString& bundleIdentifier);
