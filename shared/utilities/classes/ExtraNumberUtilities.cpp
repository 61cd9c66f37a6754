// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraNumberUtilities.h"

#include "platform/carbon/MachineLocation.h"

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
