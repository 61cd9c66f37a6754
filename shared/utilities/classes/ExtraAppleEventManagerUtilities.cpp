// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraAppleEventManagerUtilities.h"

#include "shared/utilities/classes/ExtraStringSystemUtilities.h"

std::int16_t ExtraAppleEventManagerUtilities::quickSend(Event event, const QString& toProcess) {
    const auto copy = ExtraStringUtilities::findProcess(toProcess);
    if (!copy)
        return -50;
    switch (event) {
    case Event::Quit:
        return RunningCopies::quit(*copy) ? 0 : -609;
    }
    return -50;
}
