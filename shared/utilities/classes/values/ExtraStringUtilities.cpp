// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/ExtraStringUtilities.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

namespace {

QChar characterAt(const QString& text, qsizetype index) {
    if (text.isEmpty())
        throw std::out_of_range("An empty string has no first and no last character.");
    return text[index];
}

} // namespace

bool ExtraStringUtilities::contains(const QString& text, const QString& part) {
    return !part.isEmpty() && text.contains(part, Qt::CaseInsensitive);
}

QString ExtraStringUtilities::stringWithFloat(float number) {
    // Qt rounds a tie up, where C takes the even digit.
    std::array<char, 64> text{}; // the largest number has 39 digits before its point
    const auto end = std::to_chars(text.data(), text.data() + text.size(), static_cast<double>(number),
                                   std::chars_format::fixed, 3)
                         .ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

QString ExtraStringUtilities::stringWithInteger(std::int64_t number) {
    return QString::number(number);
}

QChar ExtraStringUtilities::firstCharacter(const QString& text) {
    return characterAt(text, 0);
}

QChar ExtraStringUtilities::lastCharacter(const QString& text) {
    return characterAt(text, text.size() - 1);
}
