// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// The Moon's quarters as events in time. Moments are GMT seconds.
namespace Quarters {

struct Quarter {
    int phase = 0; ///< 0 new moon, 1 first quarter, 2 full moon, 3 last quarter
    std::uint32_t instant = 0;

    friend bool operator==(const Quarter&, const Quarter&) = default;
};

/// The first quarter after `t`, and the last one at or before it; nothing where the lunation table has none.
std::optional<Quarter> next(std::uint32_t t);
std::optional<Quarter> latest(std::uint32_t t);

/// A quarter's name in the user's language: "Full Moon".
QString name(int phase);

/// A quarter's date and time in the chosen zone.
QString time(std::uint32_t instant);

/// How far `instant` is from the present: "in 6 days", "3 hours ago". From a day on it is the difference of
/// the dates in the chosen zone.
QString distance(std::uint32_t instant);

} // namespace Quarters
