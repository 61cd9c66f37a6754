// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

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

} // namespace ExtraStringUtilities
