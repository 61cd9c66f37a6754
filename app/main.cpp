// SPDX-License-Identifier: MIT
#include "app/engine/CMoon.h"

int main() {
    gMoon.Init();
    return 0;
}
