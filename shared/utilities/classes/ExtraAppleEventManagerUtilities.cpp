// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraAppleEventManagerUtilities.h"

#include "platform/carbon/Processes.h"
#include "shared/utilities/classes/ExtraStringUtilities.h"

std::int16_t ExtraAppleEventManagerUtilities::quickSend(AEEventID eventID, const QString& toProcess) {
    ProcessSerialNumber process;
    if (!ExtraStringUtilities::findProcess(toProcess, &process))
        return paramErr;
    AEDesc target;
    AppleEvent event;
    AppleEvent reply;
    OSStatus err = AECreateDesc(typeProcessSerialNumber, &process, sizeof process, &target);
    if (err == noErr)
        err = AECreateAppleEvent(kCoreEventClass, eventID, target, kAutoGenerateReturnID, kAnyTransactionID,
                                 &event);
    if (err == noErr)
        err = AESendMessage(event, &reply, kAENoReply, kAEDefaultTimeout);
    return static_cast<std::int16_t>(err);
}
