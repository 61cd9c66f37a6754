// SPDX-License-Identifier: MIT
#include "platform/foundation/NSStringEncoding.h"

#include <unicode/ucnv.h>

namespace {

const char* converterName(std::uint32_t encoding) {
    switch (encoding) {
    case kCFStringEncodingMacRoman:
        return "macintosh";
    case kCFStringEncodingISOLatin1:
        return "ISO-8859-1";
    case kCFStringEncodingASCII:
        return "US-ASCII";
    case kCFStringEncodingUTF8:
        return "UTF-8";
    default:
        return nullptr;
    }
}

icu::LocalUConverterPointer openConverter(std::uint32_t encoding) {
    const char* name = converterName(encoding);
    UErrorCode error = U_ZERO_ERROR;
    icu::LocalUConverterPointer converter(name ? ucnv_open(name, &error) : nullptr);
    return converter;
}

} // namespace

std::optional<QByteArray> NSStringEncoding::bytesOfString(const QString& text, std::uint32_t encoding) {
    const icu::LocalUConverterPointer converter = openConverter(encoding);
    if (converter.isNull())
        return std::nullopt;
    UErrorCode error = U_ZERO_ERROR;
    // Left alone, the converter would put its substitute for what it lacks and call that success.
    ucnv_setFromUCallBack(converter.getAlias(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    const auto length = static_cast<std::int32_t>(text.size());
    QByteArray bytes(UCNV_GET_MAX_BYTES_FOR_STRING(length, ucnv_getMaxCharSize(converter.getAlias())), '\0');
    const std::int32_t written =
        ucnv_fromUChars(converter.getAlias(), bytes.data(), static_cast<std::int32_t>(bytes.size()),
                        reinterpret_cast<const UChar*>(text.utf16()), length, &error);
    if (U_FAILURE(error))
        return std::nullopt;
    bytes.truncate(written);
    return bytes;
}

QString NSStringEncoding::stringWithBytes(QByteArrayView bytes, std::uint32_t encoding) {
    const icu::LocalUConverterPointer converter = openConverter(encoding);
    if (converter.isNull())
        return {};
    UErrorCode error = U_ZERO_ERROR;
    std::u16string text(static_cast<std::size_t>(bytes.size()) * 2, u'\0');
    const std::int32_t written =
        ucnv_toUChars(converter.getAlias(), text.data(), static_cast<std::int32_t>(text.size()), bytes.data(),
                      static_cast<std::int32_t>(bytes.size()), &error);
    return U_FAILURE(error) ? QString() : QString::fromUtf16(text.data(), written);
}
