// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

struct ProcessSerialNumber;

/// Operations that the platform's string class lacks.
namespace ExtraStringUtilities {

/// Whether `part` occurs in `text`, ignoring letter case; an empty part never occurs.
bool contains(const QString& text, const QString& part);

/// A single-precision number with three decimals ("%1.3f").
QString stringWithFloat(float number);

/// An integer in plain decimal.
QString stringWithInteger(std::int64_t number);

/// The system's version as packed by `ExtraApplicationUtilities::systemVersion`, in lower-case hexadecimal
/// without leading zeros: 100608 for 10.6.8.
QString stringWithOSVersion();

/// Whether another running process has this bundle identifier (letter case ignored); the first one's serial
/// number goes to `process` where that is given.
bool findProcess(const QString& bundleIdentifier, ProcessSerialNumber* process);

} // namespace ExtraStringUtilities
