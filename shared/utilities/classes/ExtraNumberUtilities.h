// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace ExtraNumberUtilities {

/// The latitude of the place that the system keeps, in degrees, north positive; 0 when it keeps none.
double numberWithLatitude();

/// The same for the longitude, east positive.
double numberWithLongitude();

/// A number's plain text with up to 16 significant digits, trailing zeros dropped: "0", "-5", "1.5".
QString stringValue(double number);

/// The shortest text that reads back as the same single-precision number.
QString stringValue(float number);

} // namespace ExtraNumberUtilities
