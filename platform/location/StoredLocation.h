// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

/// The place that the system keeps for this machine: the city of its time zone in tzdata's zone1970.tab, then
/// zone.tab.
namespace StoredLocation {

struct Place {
    double latitude = 0;  ///< degrees, north positive
    double longitude = 0; ///< degrees, east positive
};

/// Nothing for a zone without a city (UTC, a rule written out in `TZ`).
std::optional<Place> place();

} // namespace StoredLocation
