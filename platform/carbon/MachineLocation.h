// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Stands for the place that the system keeps for this machine (ReadLocation). Backed by the city of the
/// system's time zone in tzdata's zone1970.tab, then zone.tab.

/// A fixed-point number with two bits before the point and 30 after it.
using Fract = std::int32_t;

double Frac2X(Fract value);
Fract X2Frac(double value); ///< rounded, and held inside the format's range

struct MachineLocation {
    Fract latitude = 0;  ///< in units of 90 degrees, north positive
    Fract longitude = 0; ///< in units of 90 degrees, east positive
    std::uint32_t gmtDelta =
        0; ///< lowest byte: 0x80 while daylight-saving time is in force; the rest: unused
};

/// Fills the record; a zone without a city (UTC, a rule written out in `TZ`) leaves its place cleared.
void ReadLocation(MachineLocation* location);

/// The daylight-saving byte of a record.
inline std::int8_t daylightSavingByte(const MachineLocation& location) {
    return static_cast<std::int8_t>(location.gmtDelta & 0xFF);
}
