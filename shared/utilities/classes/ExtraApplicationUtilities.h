// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace ExtraApplicationUtilities {

/// Makes the running program the frontmost one.
void bringToFront();

/// The system's version as six decimal digits, four bits each: two for the major, two for the minor and two
/// for the bug-fix number (10.4.11 is 0x100411). Asked once a run; 0 when the system does not tell.
std::uint32_t systemVersion();

/// Has all threads share one heap, and large blocks go back to the system as soon as they are freed, where
/// the C library else makes a heap for each thread and takes large blocks from it in time. Called first of
/// all.
void keepHeapSmall();

/// Gives the memory that was freed back to the system, where the C library and the cache of pictures else
/// keep it for the next time.
void returnFreedMemory();

} // namespace ExtraApplicationUtilities
