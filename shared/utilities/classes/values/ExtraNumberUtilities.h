// SPDX-License-Identifier: MIT
#pragma once

namespace ExtraNumberUtilities {

/// The latitude of the place that the system keeps, in degrees, north positive; 0 when it keeps none.
double numberWithLatitude();

/// The same for the longitude, east positive.
double numberWithLongitude();

} // namespace ExtraNumberUtilities
