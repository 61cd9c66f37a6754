// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Numbers as the user writes them, in QLocale's default, which is the locale of LC_NUMERIC: its digits,
/// decimal sign, plus and minus, and nothing between thousands.
namespace NumberFormatter {

/// The shortest text, without an exponent, that reads back as the same number.
QString string(float number);

/// With that many decimals, rounded as "%.3f" rounds.
QString string(float number, int decimals);

/// The same in no locale: "-5.5". Without decimals, the shortest text that reads back as the same number,
/// with an exponent where that is shorter.
QString plainString(float number, int decimals);
QString plainString(float number);

/// `text` with the numbers in it ("+5.5") in the locale's form. Where that has a comma as its decimal sign a
/// list's commas become semicolons.
QString localized(const QString& text);

/// The number that `text` is, but for white space around it. The decimal sign is the locale's or the point,
/// the digits those of any script; an exponent may follow. Nothing for any other text and for a number that
/// single precision can't hold.
std::optional<float> number(const QString& text);

/// The number of that kind that `text` starts with, 0 when it starts with none. One that is too large gives
/// the largest.
float leadingNumber(const QString& text);

} // namespace NumberFormatter
