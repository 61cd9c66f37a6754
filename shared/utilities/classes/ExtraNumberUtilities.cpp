// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraNumberUtilities.h"

#include "platform/carbon/MachineLocation.h"

#include <array>
#include <charconv>

double ExtraNumberUtilities::numberWithLatitude() {
    MachineLocation location;
    ReadLocation(&location);
    return Frac2X(location.latitude) * 90.0;
}

double ExtraNumberUtilities::numberWithLongitude() {
    MachineLocation location;
    ReadLocation(&location);
    return Frac2X(location.longitude) * 90.0;
}

QString ExtraNumberUtilities::stringValue(double number) {
    return QString::number(number, 'g', 16);
}

QString ExtraNumberUtilities::stringValue(float number) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}
