// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraStringUtilities.h"

#include "platform/carbon/Processes.h"
#include "platform/foundation/NSException.h"
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

constexpr qsizetype kLongestPascalText = 127;

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

Str255 ExtraStringUtilities::pascalStringWithEncoding(const QString& text, std::uint32_t encoding) {
    const auto bytes = NSStringEncoding::bytesOfString(text.left(kLongestPascalText), encoding);
    Str255 pascalString{};
    if (!bytes || bytes->size() >= static_cast<qsizetype>(pascalString.size()))
        throw NSInternalInconsistencyException(QStringLiteral("Unable to CFStringGetPascalString."));
    pascalString[0] = static_cast<std::uint8_t>(bytes->size());
    std::ranges::copy(*bytes, pascalString.begin() + 1);
    return pascalString;
}

QString ExtraStringUtilities::stringWithPascalString(std::span<const std::uint8_t> pascalString) {
    if (pascalString.empty())
        return {};
    const auto text =
        pascalString.subspan(1, std::min<std::size_t>(pascalString[0], pascalString.size() - 1));
    return NSStringEncoding::stringWithBytes(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())),
                                             kCFStringEncodingMacRoman);
}

QString ExtraStringUtilities::stringWithOSVersion() {
    return QString::number(ExtraApplicationUtilities::systemVersion(), 16);
}

bool ExtraStringUtilities::findProcess(const QString& bundleIdentifier, ProcessSerialNumber* process) {
    ProcessSerialNumber candidate = kNoProcess;
    while (GetNextProcess(&candidate) == noErr) {
        const QVariantMap information = ProcessInformationCopyDictionary(candidate);
        const QString identifier = information.value(QStringLiteral("CFBundleIdentifier")).toString();
        if (identifier.isEmpty() || identifier.compare(bundleIdentifier, Qt::CaseInsensitive) != 0 ||
            information.value(QStringLiteral("pid")).toInt() == getpid())
            continue;
        if (process)
            *process = candidate;
        return true;
    }
    return false;
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
