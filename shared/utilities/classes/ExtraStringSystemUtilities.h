// SPDX-License-Identifier: MIT
#pragma once

#include "platform/instance/RunningCopies.h"

#include <QString>

#include <optional>

/// What strings tell and ask of the system around the program.
namespace ExtraStringUtilities {

/// The system's version as packed by `ExtraApplicationUtilities::systemVersion`, in lower-case hexadecimal
/// without leading zeros: 100608 for 10.6.8.
QString stringWithOSVersion();

/// The first other running process with this bundle identifier, letter case ignored.
std::optional<RunningCopies::Copy> findProcess(const QString& bundleIdentifier);

/// Puts a text on the clipboard as plain text, with two marks beside it: `clipboardTag` with ".", and
/// "PasswordPboardType" with its own name.
void copyToClipboard(const QString& text);

/// The clipboard type that tells a text of this process: "ClipboardTag" and its process number.
QString clipboardTag();

} // namespace ExtraStringUtilities
