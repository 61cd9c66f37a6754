// SPDX-License-Identifier: MIT
#include "platform/carbon/AppleEvents.h"

#include "platform/carbon/Agents.h"
#include "platform/carbon/ProcessService.h"
#include "platform/carbon/Processes.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <map>

namespace {

using EventKey = std::pair<AEEventClass, AEEventID>;

std::map<EventKey, AEEventHandler>& installedHandlers() {
    static std::map<EventKey, AEEventHandler> handlers;
    return handlers;
}

template <typename Value>
void putAttribute(AppleEvent* event, AEKeyword keyword, DescType type, Value value) {
    AEDesc desc;
    AECreateDesc(type, &value, sizeof value, &desc);
    AEPutAttributeDesc(event, keyword, desc);
}

OSType codeAttribute(const AppleEvent& event, AEKeyword keyword) {
    AEDesc desc;
    OSType code = 0;
    if (AEGetAttributeDesc(event, keyword, typeType, &desc) == noErr)
        std::memcpy(&code, desc.data.constData(), sizeof code);
    return code;
}

OSStatus targetOf(const AppleEvent& event, ProcessSerialNumber* target) {
    AEDesc desc;
    const OSStatus err = AEGetAttributeDesc(event, keyAddressAttr, typeWildCard, &desc);
    if (err != noErr)
        return err;
    if (desc.descriptorType != typeProcessSerialNumber || desc.data.size() != sizeof *target)
        return errAEUnknownAddressType;
    std::memcpy(target, desc.data.constData(), sizeof *target);
    return noErr;
}

AppleEvent answerTo(const AppleEvent& event) {
    AppleEvent answer;
    AECreateAppleEvent(kCoreEventClass, kAEAnswer, {}, 0, kAnyTransactionID, &answer);
    AEDesc returnID;
    if (AEGetAttributeDesc(event, keyReturnIDAttr, typeSInt16, &returnID) == noErr)
        AEPutAttributeDesc(&answer, keyReturnIDAttr, returnID);
    return answer;
}

template <typename Receiver>
OSStatus sendInside(const AppleEvent& event, AppleEvent* reply, const Receiver& receiver) {
    *reply = answerTo(event);
    const OSStatus err = receiver(event, reply);
    if (err != noErr)
        AEPutParamPtr(reply, keyErrorNumber, typeSInt32, &err, sizeof err);
    return noErr;
}

bool isQuitting = false;

OSStatus quitThisProcess() {
    if (isQuitting)
        return noErr;
    isQuitting = true;
    // Later, so that who asked still gets its answer; and again, since a dialog at the start has an event
    // loop before the application has its own.
    auto* timer = new QTimer(QCoreApplication::instance());
    timer->callOnTimeout([] { QCoreApplication::exit(0); });
    timer->start(std::chrono::milliseconds(10));
    return noErr;
}

OSStatus bringThisProcessToFront() {
    ProcessSerialNumber self;
    const OSStatus err = GetCurrentProcess(&self);
    return err == noErr ? SetFrontProcess(self) : err;
}

} // namespace

OSStatus AECreateAppleEvent(AEEventClass eventClass, AEEventID eventID, const AEDesc& target,
                            std::int16_t returnID, std::int32_t transactionID, AppleEvent* result) {
    static std::int16_t lastReturnID = 0;
    if (returnID == kAutoGenerateReturnID)
        returnID = lastReturnID = static_cast<std::int16_t>(lastReturnID % 0x7FFF + 1);
    *result = {typeAppleEvent, AEDesc::Form::event, {}, {}, {}};
    putAttribute(result, keyEventClassAttr, typeType, eventClass);
    putAttribute(result, keyEventIDAttr, typeType, eventID);
    putAttribute(result, keyReturnIDAttr, typeSInt16, returnID);
    putAttribute(result, keyTransactionIDAttr, typeSInt32, transactionID);
    return AEPutAttributeDesc(result, keyAddressAttr, target);
}

OSStatus AEGetAttributeDesc(const AppleEvent& event, AEKeyword keyword, DescType type, AEDesc* result) {
    const auto found = std::ranges::find(event.attributes, keyword, &AEKeyedDesc::keyword);
    return found == event.attributes.end() ? errAEDescNotFound : AECoerceDesc(found->desc, type, result);
}

OSStatus AEPutAttributeDesc(AppleEvent* event, AEKeyword keyword, const AEDesc& desc) {
    if (event->form != AEDesc::Form::event)
        return errAEWrongDataType;
    AEDesc copy = desc; // the descriptor may be a part of the event itself
    std::erase_if(event->attributes, [keyword](const AEKeyedDesc& item) { return item.keyword == keyword; });
    event->attributes.push_back({keyword, std::move(copy)});
    return noErr;
}

AEEventClass eventClassOf(const AppleEvent& event) {
    return codeAttribute(event, keyEventClassAttr);
}

AEEventID eventIDOf(const AppleEvent& event) {
    return codeAttribute(event, keyEventIDAttr);
}

OSStatus AESendMessage(const AppleEvent& event, AppleEvent* reply, AESendMode sendMode, long timeOutInTicks) {
    AEDisposeDesc(reply);
    ProcessSerialNumber target;
    ProcessSerialNumber self;
    OSStatus err = targetOf(event, &target);
    if (err == noErr)
        err = GetCurrentProcess(&self);
    if (err != noErr)
        return err;

    const bool wantsReply = (sendMode & kAEWaitReply) == kAEWaitReply;
    AppleEvent answer;
    if (const auto agent = Agents::running(target))
        err = sendInside(event, &answer, agent->handler);
    else if (target == self)
        err = sendInside(event, &answer, &AEProcessAppleEvent);
    else
        err = ProcessService::send(event, target, wantsReply ? &answer : nullptr, timeOutInTicks);
    if (err == noErr && wantsReply)
        *reply = std::move(answer);
    return err;
}

void AEInstallEventHandler(AEEventClass eventClass, AEEventID eventID, AEEventHandler handler) {
    installedHandlers()[{eventClass, eventID}] = std::move(handler);
}

OSStatus AEProcessAppleEvent(const AppleEvent& event, AppleEvent* reply) {
    const EventKey key{eventClassOf(event), eventIDOf(event)};
    const auto installed = installedHandlers().find(key);
    if (installed != installedHandlers().end() && installed->second) {
        const AEEventHandler handler = installed->second; // it may install another one
        return handler(event, reply);
    }
    if (key == EventKey{kCoreEventClass, kAEQuitApplication})
        return quitThisProcess();
    if (key == EventKey{kCoreEventClass, kAEReopenApplication})
        return bringThisProcessToFront();
    return errAEEventNotHandled;
}

bool AEIsQuitting() {
    return isQuitting;
}
