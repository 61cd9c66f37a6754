// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/PascalString.h"

#include "shared/utilities/classes/values/Exception.h"

#include <algorithm>

#include <unicode/ucnv.h>

namespace {

constexpr qsizetype kLongestText = 127;

const char* converterName(std::uint32_t encoding) {
    switch (encoding) {
    case kEncodingMacRoman:
        return "macintosh";
    case kEncodingISOLatin1:
        return "ISO-8859-1";
    case kEncodingUTF8:
        return "UTF-8";
    default:
        return nullptr;
    }
}

} // namespace

PascalString ExtraStringUtilities::pascalStringWithEncoding(const QString& text, std::uint32_t encoding) {
    UErrorCode error = U_ZERO_ERROR;
    const char* const name = converterName(encoding);
    const icu::LocalUConverterPointer converter(name ? ucnv_open(name, &error) : nullptr);
    PascalString pascalString{};
    std::int32_t written = -1;
    if (converter.isValid()) {
        // Left alone, the converter would put its substitute for what it lacks and call that success.
        ucnv_setFromUCallBack(converter.getAlias(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                              &error);
        const QString cut = text.left(kLongestText);
        written = ucnv_fromUChars(converter.getAlias(), reinterpret_cast<char*>(pascalString.data() + 1),
                                  static_cast<std::int32_t>(pascalString.size() - 1),
                                  reinterpret_cast<const UChar*>(cut.utf16()),
                                  static_cast<std::int32_t>(cut.size()), &error);
    }
    if (written < 0 || U_FAILURE(error))
        throw InternalInconsistencyException(QStringLiteral("Unable to CFStringGetPascalString."));
    pascalString[0] = static_cast<std::uint8_t>(written);
    return pascalString;
}

QString ExtraStringUtilities::stringWithPascalString(std::span<const std::uint8_t> pascalString) {
    if (pascalString.empty())
        return {};
    const auto bytes =
        pascalString.subspan(1, std::min<std::size_t>(pascalString[0], pascalString.size() - 1));
    UErrorCode error = U_ZERO_ERROR;
    const icu::LocalUConverterPointer converter(ucnv_open(converterName(kEncodingMacRoman), &error));
    std::u16string text(bytes.size(), u'\0'); // each byte is one character
    if (U_SUCCESS(error))
        ucnv_toUChars(converter.getAlias(), text.data(), static_cast<std::int32_t>(text.size()),
                      reinterpret_cast<const char*>(bytes.data()), static_cast<std::int32_t>(bytes.size()),
                      &error);
    return U_FAILURE(error) ? QString() : QString::fromStdU16String(text);
}
