// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// A run of items or characters.
struct Range {
    qsizetype location = 0;
    qsizetype length = 0;

    friend bool operator==(const Range&, const Range&) = default;
};
