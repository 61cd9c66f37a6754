// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The few basic types that the Carbon stand-ins share.
using OSStatus = std::int32_t;
using OSType = std::uint32_t;

/// A four-character code, its first character in the highest byte: fourCharCode("sevs").
constexpr OSType fourCharCode(const char (&text)[5]) {
    OSType code = 0;
    for (int i = 0; i < 4; ++i)
        code = code << 8 | static_cast<unsigned char>(text[i]);
    return code;
}

constexpr OSStatus noErr = 0;
constexpr OSStatus paramErr = -50;
