// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/ExtraNumberUtilities.h"

#include "platform/location/StoredLocation.h"

double ExtraNumberUtilities::numberWithLatitude() {
    return StoredLocation::place().value_or(StoredLocation::Place()).latitude;
}

double ExtraNumberUtilities::numberWithLongitude() {
    return StoredLocation::place().value_or(StoredLocation::Place()).longitude;
}
