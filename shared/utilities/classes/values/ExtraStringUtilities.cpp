// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/ExtraStringUtilities.h"

#include "platform/locale/NumberFormatter.h"

#include <algorithm>
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
    return NumberFormatter::plainString(number, 3);
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
