// SPDX-License-Identifier: MIT
#include "platform/locale/NumberFormatter.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr double kLargest = std::numeric_limits<float>::max();

template <typename... Precision>
QString plainText(Precision... precision) {
    // The largest number has 39 digits, the smallest 46 decimals.
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), precision...).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

QString localizedNumber(QStringView plain) {
    const QLocale locale;
    QString text;
    for (const QChar letter : plain) {
        if (letter == u'.')
            text += locale.decimalPoint();
        else if (letter == u'-')
            text += locale.negativeSign();
        else if (letter == u'+')
            text += locale.positiveSign();
        else
            text += locale.toString(letter.digitValue());
    }
    return text;
}

/// What was typed, with the signs and digits of "-5.5".
QString plainForm(const QString& text) {
    constexpr char32_t kMinusSign = 0x2212;
    constexpr char32_t kArabicDecimalSign = 0x066B;
    const QString decimalSign = QLocale().decimalPoint();
    QString plain;
    for (char32_t letter : text.toUcs4()) {
        if (letter >= 0xFF01 && letter <= 0xFF5E)
            letter -= 0xFF01 - U'!'; // full-width, as East Asian input methods type them
        const QString same = QString::fromUcs4(&letter, 1);
        if (QChar::category(letter) == QChar::Number_DecimalDigit)
            plain += QString::number(QChar::digitValue(letter));
        else if (letter == kMinusSign)
            plain += u'-';
        else if (letter == kArabicDecimalSign || same == decimalSign)
            plain += u'.';
        else if (QChar::category(letter) != QChar::Other_Format) // marks of the writing direction
            plain += same;
    }
    return plain;
}

struct Leading {
    double number = 0.0;
    bool isAll = false;
};

Leading leading(const QString& text) {
    static const QRegularExpression number(
        QStringLiteral(R"(^\s*([+-]?(?:[0-9]+(?:\.[0-9]*)?|\.[0-9]+)(?:[eE][+-]?[0-9]+)?)(\s*$)?)"),
        QRegularExpression::UseUnicodePropertiesOption);
    const auto match = number.match(plainForm(text));
    return {match.captured(1).toDouble(), match.hasCaptured(2)};
}

} // namespace

QString NumberFormatter::string(float number) {
    return localizedNumber(plainText(number == 0.0F ? 0.0F : number, std::chars_format::fixed)); // no "-0"
}

QString NumberFormatter::string(float number, int decimals) {
    return localizedNumber(plainString(number, decimals));
}

QString NumberFormatter::plainString(float number, int decimals) {
    return plainText(static_cast<double>(number), std::chars_format::fixed, decimals);
}

QString NumberFormatter::plainString(float number) {
    return plainText(number);
}

QString NumberFormatter::localized(const QString& text) {
    static const QRegularExpression number(QStringLiteral(R"([+-]?[0-9]+(?:\.[0-9]+)?)"));
    QString result;
    qsizetype end = 0;
    for (auto matches = number.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        QString between = text.mid(end, match.capturedStart() - end);
        if (end > 0 && QLocale().decimalPoint() == u',')
            between.replace(u',', u';');
        result += between + localizedNumber(match.capturedView());
        end = match.capturedEnd();
    }
    return result + text.mid(end);
}

std::optional<float> NumberFormatter::number(const QString& text) {
    const auto [number, isAll] = leading(text);
    return isAll && std::abs(number) <= kLargest ? std::optional(static_cast<float>(number)) : std::nullopt;
}

float NumberFormatter::leadingNumber(const QString& text) {
    return static_cast<float>(std::clamp(leading(text).number, -kLargest, kLargest));
}
