// SPDX-License-Identifier: MIT
#include "platform/carbon/Agents.h"
#include "platform/carbon/SystemEvents.h"
#include "shared/utilities/libraries/LoginItemsAE/LoginItemsAE.h"

#include <cstdlib>

namespace {

void demand(bool holds) {
    if (!holds)
        std::abort();
}

constexpr DescType kTypes[] = {
    typeNull,     typeWildCard, typeAEList,     typeAERecord,     typeObjectSpecifier,
    typeUTF8Text, typeSInt32,   typeSInt16,     typeInsertionLoc, typeUnicodeText,
    typeBoolean,  typeType,     typeEnumerated, typeAppleEvent};

/// What a coercion gives is of the type that was asked for, and once more the same.
void coerce(const AEDesc& desc) {
    for (const DescType type : kTypes) {
        AEDesc once;
        AEDesc twice;
        if (AECoerceDesc(desc, type, &once) != noErr || type == typeWildCard)
            continue;
        demand(once.descriptorType == type);
        demand(AECoerceDesc(once, type, &twice) == noErr && twice == once);
    }
    for (const AEKeyedDesc& item : desc.items)
        coerce(item.desc);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // No bus to ask, no folder to change, nothing to tell.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/dev/null");
    qputenv("LUMIVANE_CONFIG_HOME", "/dev/null/none");
    qputenv("QT_LOGGING_RULES", "*=false");
    return 0;
}

/// Any bytes are refused or are a descriptor; then nobody who gets it as an event, or as an answer, reads
/// past its end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    AEDesc desc;
    if (AEUnflattenDesc(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)),
                        &desc) != noErr)
        return 0;
    QByteArray flat;
    AEDesc again;
    demand(AEFlattenDesc(desc, &flat) == noErr && AEUnflattenDesc(flat, &again) == noErr && again == desc);
    coerce(desc);

    AppleEvent reply;
    AECreateAppleEvent(kCoreEventClass, kAEAnswer, {}, 0, kAnyTransactionID, &reply);
    static const AEEventHandler systemEvents = systemEventsAgent();
    systemEvents(desc, &reply);

    Agents::install(kSystemEventsSignature, [&desc](const AppleEvent&, AppleEvent* answer) {
        return AEPutParamDesc(answer, keyDirectObject, desc);
    });
    std::unique_ptr<LoginItemsList> items;
    demand((LIAECopyLoginItems(&items) == noErr) == (items != nullptr));
    return 0;
}
