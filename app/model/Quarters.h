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

/// The quarter that is to be told at the moment `now`: the latest one, if it passed within the last twelve
/// hours and is later than `told`, the number of the last one that was: four times its lunation's, and its
/// phase. `told` becomes the latest one's number. A clock set back makes no quarter come twice, unless it was
/// wrong by more than a lunation.
std::optional<Quarter> takeDue(std::int64_t now, int& told);

/// A quarter's name in the user's language: "Full Moon".
QString name(int phase);

/// A quarter's date and time in the chosen zone.
QString time(std::uint32_t instant);

/// A quarter's date and time, and for a full moon a second line with its name: "Moon is a Cold Moon".
QString details(const Quarter& quarter);

/// How far `instant` is from the present: "in 6 days", "3 hours ago". From a day on it is the difference of
/// the dates in the chosen zone.
QString distance(std::uint32_t instant);

} // namespace Quarters
