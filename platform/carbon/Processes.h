// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/MacTypes.h"

#include <QVariantMap>

/// Stands for the Process Manager: the running copies that can be found, brought to the front and told to
/// quit. Backed by names on the D-Bus session bus: every copy owns `<bundle identifier>.pid<PID>`. Without a
/// session bus the list holds nothing but the running process itself.

struct ProcessSerialNumber {
    std::uint32_t highLongOfPSN = 0;
    std::uint32_t lowLongOfPSN = 0;

    friend bool operator==(const ProcessSerialNumber&, const ProcessSerialNumber&) = default;
};

/// {0, 0}: before the first process of a walk.
constexpr ProcessSerialNumber kNoProcess{};

constexpr OSStatus procNotFound = -600;

/// The process after `*process` in the list's order; `procNotFound` at its end.
OSStatus GetNextProcess(ProcessSerialNumber* process);

/// "CFBundleIdentifier" (QString) and "pid" (int) of a process; empty for one that is gone.
QVariantMap ProcessInformationCopyDictionary(const ProcessSerialNumber& process);

OSStatus GetCurrentProcess(ProcessSerialNumber* process);

/// Raises the windows of the running process; another process can't be raised (`paramErr`).
OSStatus SetFrontProcess(const ProcessSerialNumber& process);

/// Makes the running process known to others under its bundle identifier. False, with a log line, when there
/// is no session bus or the name can't be had.
bool announceProcess(const QString& bundleIdentifier);
