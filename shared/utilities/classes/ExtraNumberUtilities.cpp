// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraNumberUtilities.h"

#include "platform/location/StoredLocation.h"

#include <array>
#include <charconv>

double ExtraNumberUtilities::numberWithLatitude() {
    return StoredLocation::place().value_or(StoredLocation::Place()).latitude;
}

double ExtraNumberUtilities::numberWithLongitude() {
    return StoredLocation::place().value_or(StoredLocation::Place()).longitude;
}

QString ExtraNumberUtilities::stringValue(double number) {
    return QString::number(number, 'g', 16);
}

QString ExtraNumberUtilities::stringValue(float number) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}
