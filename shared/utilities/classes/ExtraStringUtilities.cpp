// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraStringUtilities.h"

#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

#include <unistd.h>

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

QString ExtraStringUtilities::stringWithOSVersion() {
    return QString::number(ExtraApplicationUtilities::systemVersion(), 16);
}

std::optional<RunningCopies::Copy> ExtraStringUtilities::findProcess(const QString& bundleIdentifier) {
    for (const RunningCopies::Copy& copy : RunningCopies::others()) {
        if (copy.identifier.compare(bundleIdentifier, Qt::CaseInsensitive) == 0)
            return copy;
    }
    return std::nullopt;
}

void ExtraStringUtilities::copyToClipboard(const QString& text) {
    constexpr char kPasswordType[] = "PasswordPboardType";
    auto* types = new QMimeData;
    types->setText(text);
    types->setData(clipboardTag(), ".");
    types->setData(QLatin1String(kPasswordType), kPasswordType);
    QGuiApplication::clipboard()->setMimeData(types);
}

QString ExtraStringUtilities::clipboardTag() {
    return QStringLiteral("ClipboardTag%1").arg(getpid());
}
