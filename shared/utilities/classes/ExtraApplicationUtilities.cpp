// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include "platform/carbon/Gestalt.h"
#include "platform/carbon/Processes.h"

#include <array>

#include <malloc.h>

void ExtraApplicationUtilities::bringToFront() {
    ProcessSerialNumber self;
    if (GetCurrentProcess(&self) == noErr)
        SetFrontProcess(self);
}

std::uint32_t ExtraApplicationUtilities::systemVersion() {
    static std::uint32_t version = 0;
    if (version != 0)
        return version;

    std::array<std::int32_t, 3> numbers{};
    if (Gestalt(fourCharCode("sys1"), &numbers[0]) == noErr &&
        Gestalt(fourCharCode("sys2"), &numbers[1]) == noErr &&
        Gestalt(fourCharCode("sys3"), &numbers[2]) == noErr) {
        std::uint32_t packed = 0;
        for (const std::int32_t number : numbers)
            packed = packed << 8 | static_cast<std::uint32_t>(number / 10) << 4 |
                     static_cast<std::uint32_t>(number % 10);
        return version = packed;
    }
    std::int32_t older = 0;
    if (Gestalt(fourCharCode("sysv"), &older) == noErr) {
        const auto digits = static_cast<std::uint32_t>(older);
        version = (digits & 0xFF00) << 8 | (digits & 0xF0) << 4 | (digits & 0xF);
    }
    return version;
}

void ExtraApplicationUtilities::keepHeapSmall() {
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
}

void ExtraApplicationUtilities::returnFreedMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}
