// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstdint>
#include <optional>

/// Stands for the string class's conversions to and from the character sets of old, which Qt lacks. Backed by
/// ICU's converters.

/// A Pascal string: a length byte, then that many bytes.
using Str255 = std::array<std::uint8_t, 256>;

/// The platform's numbers of the encodings that are known here.
constexpr std::uint32_t kCFStringEncodingMacRoman = 0;
constexpr std::uint32_t kCFStringEncodingISOLatin1 = 0x0201;
constexpr std::uint32_t kCFStringEncodingASCII = 0x0600;
constexpr std::uint32_t kCFStringEncodingUTF8 = 0x08000100;

namespace NSStringEncoding {

/// The string's bytes; nothing when it holds a character that the encoding lacks, or for an unknown encoding.
std::optional<QByteArray> bytesOfString(const QString& text, std::uint32_t encoding);

/// The text of bytes; bytes that mean nothing become U+FFFD. A null string for an unknown encoding.
QString stringWithBytes(QByteArrayView bytes, std::uint32_t encoding);

} // namespace NSStringEncoding
