// SPDX-License-Identifier: MIT
#pragma once

#include "platform/instance/RunningCopies.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

/// Operations that the platform's string class lacks.
namespace ExtraStringUtilities {

/// Whether `part` occurs in `text`, ignoring letter case; an empty part never occurs.
bool contains(const QString& text, const QString& part);

/// A single-precision number with three decimals ("%1.3f").
QString stringWithFloat(float number);

/// An integer in plain decimal.
QString stringWithInteger(std::int64_t number);

/// The first and the last character; an empty string raises std::out_of_range.
QChar firstCharacter(const QString& text);
QChar lastCharacter(const QString& text);

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
