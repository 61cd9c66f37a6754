// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Stands for Foundation's range: a run of items or characters. Backed by two plain counts.
struct NSRange {
    qsizetype location = 0;
    qsizetype length = 0;

    friend bool operator==(const NSRange&, const NSRange&) = default;
};
