// SPDX-License-Identifier: MIT
#include "shared/utilities/libraries/LoginItemsAE/LoginItemsAE.h"

#include "platform/carbon/Agents.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cstring>
#include <initializer_list>
#include <limits>

#define LIAEAssert(condition)                                                                                \
    do {                                                                                                     \
        if (!(condition))                                                                                    \
            assertionFailed(__func__, #condition);                                                           \
    } while (false)

namespace {

constexpr OSType kAECoreSuite = fourCharCode("core");
constexpr AEEventID kAEGetData = fourCharCode("getd");
constexpr AEEventID kAECreateElement = fourCharCode("crel");
constexpr AEEventID kAEDelete = fourCharCode("delo");
constexpr OSType cLoginItem = fourCharCode("logi");
constexpr OSType cProperty = fourCharCode("prop");
constexpr OSType formPropertyID = fourCharCode("prop");
constexpr OSType pAll = fourCharCode("pALL");
constexpr OSType formAbsolutePosition = fourCharCode("indx");
constexpr OSType kAEAll = fourCharCode("all ");
constexpr OSType kAEEnd = fourCharCode("end ");
constexpr AEKeyword propPath = fourCharCode("ppth");
constexpr AEKeyword propHidden = fourCharCode("hidn");
constexpr AEKeyword keyAEObjectClass = fourCharCode("kocl");
constexpr AEKeyword keyAEPropData = fourCharCode("prdt");
constexpr AEKeyword keyAEInsertHere = fourCharCode("insh");

constexpr long kSystemEventsTimeout = 5L * 60; // ticks
constexpr std::size_t kPathBufferSize = 1024;

[[noreturn]] void assertionFailed(const char* function, const char* condition) {
    qFatal("%s: LoginItemsAE: assertion failed: %s", function, condition);
}

void AEDisposeDescQ(AEDesc* thisDesc) {
    LIAEAssert(thisDesc != NULL);
    const OSStatus junk = AEDisposeDesc(thisDesc);
    LIAEAssert(junk == noErr);
}

/// Disposes of a descriptor on every way out of a scope.
struct Descriptor : AEDesc {
    Descriptor() = default;
    ~Descriptor() { AEDisposeDescQ(this); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
};

OSStatus createCode(DescType type, OSType code, AEDesc* result) {
    return AECreateDesc(type, &code, sizeof code, result);
}

OSStatus launchSystemEvents(ProcessSerialNumber* process) {
    LSApplicationParameters parameters;
    const OSStatus err = LSFindApplicationForInfo(kSystemEventsSignature, &parameters.application);
    return err == noErr ? LSOpenApplication(parameters, process) : err;
}

OSStatus findSystemEvents(ProcessSerialNumber* process) {
    *process = kNoProcess;
    OSStatus err = GetNextProcess(process);
    for (; err == noErr; err = GetNextProcess(process)) {
        ProcessInfoRec information;
        err = GetProcessInformation(*process, &information);
        if (err != noErr || information.processSignature == kSystemEventsSignature)
            break;
    }
    return err == procNotFound ? launchSystemEvents(process) : err;
}

OSStatus statusInReply(const AppleEvent& reply) {
    if (reply.descriptorType == typeNull)
        return noErr;
    std::int16_t number = 0;
    const OSStatus err = AEGetParamPtr(reply, keyErrorNumber, typeSInt16, &number, sizeof number, nullptr);
    if (err == errAEDescNotFound)
        return noErr;
    return err == noErr ? number : err;
}

struct EventParameter {
    AEKeyword keyword;
    const AEDesc& desc;
};

/// Sends an event of the core suite and waits for the answer, which `reply`, where it is given, takes.
OSStatus SendEventToSystemEventsWithParameters(AEEventID eventID, AppleEvent* reply,
                                               std::initializer_list<EventParameter> parameters) {
    LIAEAssert((reply == NULL) || (reply->descriptorType == typeNull));
    ProcessSerialNumber process;
    Descriptor target;
    Descriptor event;
    Descriptor answer;
    OSStatus err = findSystemEvents(&process);
    if (err == noErr)
        err = AECreateDesc(typeProcessSerialNumber, &process, sizeof process, &target);
    if (err == noErr)
        err = AECreateAppleEvent(kAECoreSuite, eventID, target, kAutoGenerateReturnID, kAnyTransactionID,
                                 &event);
    for (const auto& [keyword, desc] : parameters) {
        if (err == noErr)
            err = AEPutParamDesc(&event, keyword, desc);
    }
    if (err == noErr)
        err = AESendMessage(event, &answer, kAEWaitReply, kSystemEventsTimeout);
    if (err == noErr)
        err = statusInReply(answer);
    if (err == noErr && reply)
        *reply = std::move(answer);
    LIAEAssert((reply == NULL) || ((err == noErr) == (reply->descriptorType != typeNull)));
    return err;
}

OSStatus createEveryLoginItem(AEDesc* result) {
    Descriptor ordinal;
    Descriptor items;
    Descriptor property;
    OSStatus err = createCode(typeAbsoluteOrdinal, kAEAll, &ordinal);
    if (err == noErr)
        err = CreateObjSpecifier(cLoginItem, {}, formAbsolutePosition, ordinal, &items);
    if (err == noErr)
        err = createCode(typeType, pAll, &property);
    if (err == noErr)
        err = CreateObjSpecifier(cProperty, items, formPropertyID, property, result);
    return err;
}

QUrl urlOfPath(const QByteArray& path) {
    FSRef ref;
    const bool exists = FSPathMakeRef(path, &ref) == noErr;
    return QUrl::fromLocalFile(QFile::decodeName(exists ? ref.path : path));
}

OSStatus createLoginItem(const AEDesc& record, QVariantMap* item) {
    std::array<char, kPathBufferSize> path{};
    std::size_t size = 0;
    const OSStatus err = AEGetParamPtr(record, propPath, typeUTF8Text, path.data(), path.size() - 1, &size);
    if (err != noErr)
        return err;
    path[std::min(size, path.size() - 1)] = '\0';
    const QUrl url = urlOfPath(path.data());
    if (!url.isValid() || url.isEmpty())
        return coreFoundationUnknownErr;
    std::uint8_t hidden = 0;
    if (AEGetParamPtr(record, propHidden, typeBoolean, &hidden, sizeof hidden, nullptr) != noErr)
        hidden = 0;
    *item = {{QStringLiteral("URL"), url}, {QStringLiteral("Hidden"), hidden != 0}};
    return noErr;
}

OSStatus CreateCFArrayFromAEDescList(const AEDesc& list, std::unique_ptr<LoginItemsList>* itemsPtr) {
    LIAEAssert(itemsPtr != NULL);
    LIAEAssert(*itemsPtr == NULL);
    auto items = std::make_unique<LoginItemsList>();
    long count = 0;
    OSStatus err = AECountItems(list, &count);
    for (long i = 1; i <= count && err == noErr; ++i) {
        Descriptor record;
        QVariantMap item;
        err = AEGetNthDesc(list, i, typeAERecord, &record);
        if (err == noErr)
            err = createLoginItem(record, &item);
        if (err == noErr)
            items->append(item);
    }
    if (err == noErr)
        *itemsPtr = std::move(items);
    LIAEAssert((err == noErr) == (*itemsPtr != NULL));
    return err;
}

OSStatus createProperties(const FSRef& item, bool hideIt, AEDesc* result) {
    std::array<char, kPathBufferSize> path{};
    Descriptor bytes;
    Descriptor text;
    OSStatus err = AECreateList(true, result);
    if (err == noErr)
        err = FSRefMakePath(item, path.data(), path.size());
    if (err == noErr)
        err = AECreateDesc(typeUTF8Text, path.data(), std::strlen(path.data()), &bytes);
    if (err == noErr)
        err = AECoerceDesc(bytes, typeUnicodeText, &text);
    if (err == noErr)
        err = AEPutParamDesc(result, propPath, text);
    const std::uint8_t hidden = hideIt ? 1 : 0;
    if (err == noErr)
        err = AEPutParamPtr(result, propHidden, typeBoolean, &hidden, sizeof hidden);
    return err;
}

OSStatus createInsertionAtEnd(AEDesc* result) {
    Descriptor record;
    OSStatus err = AECreateList(true, &record);
    if (err == noErr)
        err = AEPutParamDesc(&record, keyAEObject, {});
    if (err == noErr)
        err = AEPutParamPtr(&record, keyAEPosition, typeEnumerated, &kAEEnd, sizeof kAEEnd);
    if (err == noErr)
        err = AECoerceDesc(record, typeInsertionLoc, result);
    return err;
}

} // namespace

OSStatus LIAECopyLoginItems(std::unique_ptr<LoginItemsList>* itemsPtr) {
    LIAEAssert(itemsPtr != NULL);
    LIAEAssert(*itemsPtr == NULL);
    Descriptor everyItem;
    Descriptor reply;
    Descriptor list;
    OSStatus err = createEveryLoginItem(&everyItem);
    if (err == noErr)
        err = SendEventToSystemEventsWithParameters(kAEGetData, &reply, {{keyDirectObject, everyItem}});
    if (err == noErr)
        err = AEGetParamDesc(reply, keyDirectObject, typeAEList, &list);
    if (err == noErr)
        err = CreateCFArrayFromAEDescList(list, itemsPtr);
    LIAEAssert((err == noErr) == (*itemsPtr != NULL));
    return err;
}

OSStatus LIAEAddRefAtEnd(const FSRef* item, bool hideIt) {
    LIAEAssert(item != NULL);
    Descriptor objectClass;
    Descriptor properties;
    Descriptor atEnd;
    OSStatus err = createCode(typeType, cLoginItem, &objectClass);
    if (err == noErr)
        err = createProperties(*item, hideIt, &properties);
    if (err == noErr)
        err = createInsertionAtEnd(&atEnd);
    if (err == noErr)
        err = SendEventToSystemEventsWithParameters(
            kAECreateElement, nullptr,
            {{keyAEObjectClass, objectClass}, {keyAEPropData, properties}, {keyAEInsertHere, atEnd}});
    return err;
}

OSStatus LIAEAddURLAtEnd(const QUrl* item, bool hideIt) {
    LIAEAssert(item != NULL);
    FSRef ref;
    return CFURLGetFSRef(*item, &ref) ? LIAEAddRefAtEnd(&ref, hideIt) : fnfErr;
}

OSStatus LIAERemove(long itemIndex) {
    LIAEAssert(itemIndex >= 0);
    if (itemIndex >= std::numeric_limits<std::int32_t>::max())
        return errAEIllegalIndex;
    const auto position = static_cast<std::int32_t>(itemIndex + 1);
    Descriptor index;
    Descriptor item;
    OSStatus err = AECreateDesc(typeSInt32, &position, sizeof position, &index);
    if (err == noErr)
        err = CreateObjSpecifier(cLoginItem, {}, formAbsolutePosition, index, &item);
    if (err == noErr)
        err = SendEventToSystemEventsWithParameters(kAEDelete, nullptr, {{keyDirectObject, item}});
    return err;
}
