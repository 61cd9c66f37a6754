// SPDX-License-Identifier: MIT
#include "platform/carbon/GetMBarHeight.h"

int GetMBarHeight() {
    return 22;
}
