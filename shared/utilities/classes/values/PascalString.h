// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <span>

/// A length byte, then that many bytes.
using PascalString = std::array<std::uint8_t, 256>;

/// The numbers of the encodings that are known here.
constexpr std::uint32_t kEncodingMacRoman = 0;
constexpr std::uint32_t kEncodingISOLatin1 = 0x0201;
constexpr std::uint32_t kEncodingUTF8 = 0x08000100;

namespace ExtraStringUtilities {

/// The string, cut to its first 127 characters, as a Pascal string in an encoding. Raises an
/// InternalInconsistencyException when a character has no place in the encoding, the encoding is unknown or
/// the bytes are more than 255.
PascalString pascalStringWithEncoding(const QString& text, std::uint32_t encoding);

/// The text of a Pascal string in Mac Roman; a null string for nothing. A length byte that promises more than
/// there is counts as what there is.
QString stringWithPascalString(std::span<const std::uint8_t> pascalString);

} // namespace ExtraStringUtilities
