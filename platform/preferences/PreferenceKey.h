// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

#include <limits>

/// The numbers that a preference may have; all of them, unless told otherwise.
struct PreferenceRange {
    float smallest = std::numeric_limits<float>::lowest();
    float largest = std::numeric_limits<float>::max();
};

/// A preference of type bool, int, float or QString, declared once where it belongs.
template <typename T>
struct PreferenceKey {
    QLatin1String name;      ///< in the file, in layouts, and in `Preferences::valueChanged`
    T fallback{};            ///< the default, which answers where the user stored nothing of use
    PreferenceRange range{}; ///< of a float; a stored number outside it is of no use
};
