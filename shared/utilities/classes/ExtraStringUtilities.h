// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/NSStringEncoding.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <span>

struct ProcessSerialNumber;

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

/// The string, cut to its first 127 characters, as a Pascal string in an encoding (0: Mac Roman). Raises an
/// NSInternalInconsistencyException when a character has no place in the encoding, the encoding is unknown or
/// the bytes are more than 255.
Str255 pascalStringWithEncoding(const QString& text, std::uint32_t encoding);

/// The text of a Pascal string in Mac Roman; a null string for nothing. A length byte that promises more than
/// there is counts as what there is.
QString stringWithPascalString(std::span<const std::uint8_t> pascalString);

/// The system's version as packed by `ExtraApplicationUtilities::systemVersion`, in lower-case hexadecimal
/// without leading zeros: 100608 for 10.6.8.
QString stringWithOSVersion();

/// Whether another running process has this bundle identifier (letter case ignored); the first one's serial
/// number goes to `process` where that is given.
bool findProcess(const QString& bundleIdentifier, ProcessSerialNumber* process);

/// Puts a text on the clipboard as plain text, with two marks beside it: `clipboardTag` with ".", and
/// "PasswordPboardType" with its own name.
void copyToClipboard(const QString& text);

/// The clipboard type that tells a text of this process: "ClipboardTag" and its process number.
QString clipboardTag();

} // namespace ExtraStringUtilities
