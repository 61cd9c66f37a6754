// SPDX-License-Identifier: MIT
#pragma once

#include <array>

/// The major, minor and bug-fix number of the running system: os-release's `VERSION_ID`, or the kernel's
/// release where a rolling distribution states none. A number over 99 counts as 99.
std::array<int, 3> systemVersionNumbers();
