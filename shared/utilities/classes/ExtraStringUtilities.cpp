// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraStringUtilities.h"

#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QRegularExpression>

#include <algorithm>
#include <limits>
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
    return QString::number(static_cast<double>(number), 'f', 3);
}

QString ExtraStringUtilities::stringWithInteger(std::int64_t number) {
    return QString::number(number);
}

float ExtraStringUtilities::floatValue(const QString& text) {
    static const QRegularExpression leadingNumber(
        QStringLiteral(R"(^\s*([+-]?(?:[0-9]+(?:\.[0-9]*)?|\.[0-9]+)(?:[eE][+-]?[0-9]+)?))"),
        QRegularExpression::UseUnicodePropertiesOption);
    const double number = leadingNumber.match(text).captured(1).toDouble();
    constexpr double kLargest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(number, -kLargest, kLargest));
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
