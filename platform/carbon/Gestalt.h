// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/MacTypes.h"

/// Stands for the Gestalt Manager's answers about the system's version. Backed by os-release, then by the
/// kernel's release; a number over 99 counts as 99.

constexpr OSStatus gestaltUndefSelectorErr = -5551;

/// Answers 'sys1', 'sys2' and 'sys3' (major, minor and bug-fix number) and 'sysv' (the older packed form with
/// two, one and one binary-coded digits); any other selector gives `gestaltUndefSelectorErr`.
OSStatus Gestalt(OSType selector, std::int32_t* response);
