// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/AEDesc.h"

#include <functional>

/// Stands for the Apple Event Manager's events. Backed by calls to the agents in this process, and by
/// messages on the D-Bus session bus to the other processes that announced themselves (Processes.h).

using AppleEvent = AEDesc;
using AEEventClass = OSType;
using AEEventID = OSType;
using AESendMode = std::int32_t;

constexpr AEEventClass kCoreEventClass = fourCharCode("aevt");
constexpr AEEventID kAEQuitApplication = fourCharCode("quit");
constexpr AEEventID kAEReopenApplication = fourCharCode("rapp");
constexpr AEEventID kAEOpenDocuments = fourCharCode("odoc"); ///< direct object: a list of URLs as text
/// A command of the desktop entry; direct object: its name as text.
constexpr AEEventID kAEActivateAction = fourCharCode("actn");
constexpr AEEventID kAEAnswer = fourCharCode("ansr");

constexpr AEKeyword keyAddressAttr = fourCharCode("addr");
constexpr AEKeyword keyOriginalAddressAttr = fourCharCode("from"); ///< of an event from another copy
constexpr AEKeyword keyEventClassAttr = fourCharCode("evcl");
constexpr AEKeyword keyEventIDAttr = fourCharCode("evid");
constexpr AEKeyword keyReturnIDAttr = fourCharCode("rtid");
constexpr AEKeyword keyTransactionIDAttr = fourCharCode("tran");

constexpr std::int16_t kAutoGenerateReturnID = -1;
constexpr std::int32_t kAnyTransactionID = 0;
constexpr AESendMode kAENoReply = 1;
constexpr AESendMode kAEWaitReply = 3;
constexpr long kAEDefaultTimeout = -1;

constexpr OSStatus errAEEventNotHandled = -1708;
constexpr OSStatus errAETimeout = -1712;
constexpr OSStatus errAEUnknownAddressType = -1716;
constexpr OSStatus errAENoSuchObject = -1728;

/// Makes `result` an event without parameters. `returnID` may be generated; one that is given goes into the
/// answer as it is.
OSStatus AECreateAppleEvent(AEEventClass eventClass, AEEventID eventID, const AEDesc& target,
                            std::int16_t returnID, std::int32_t transactionID, AppleEvent* result);

/// An attribute of an event, coerced to `type`; errAEDescNotFound when the event has none such.
OSStatus AEGetAttributeDesc(const AppleEvent& event, AEKeyword keyword, DescType type, AEDesc* result);
OSStatus AEPutAttributeDesc(AppleEvent* event, AEKeyword keyword, const AEDesc& desc);

/// The event's class and ID; 0 where it lacks them.
AEEventClass eventClassOf(const AppleEvent& event);
AEEventID eventIDOf(const AppleEvent& event);

/// Sends an event to the process or agent that its target, a 'psn ', names. With `kAEWaitReply` the answer is
/// stored in `reply`, and a receiver that failed puts its status there as 'errn'; else `reply` becomes the
/// null descriptor, and noErr means that the event is on its way. `timeOutInTicks` (sixtieths of a second)
/// bounds the wait for another process; an agent in this process has answered when the call returns.
/// procNotFound when there is no such process, errAETimeout, errAECorruptData for an answer that is none.
OSStatus AESendMessage(const AppleEvent& event, AppleEvent* reply, AESendMode sendMode, long timeOutInTicks);

/// What answers an event; `reply` is an event that takes parameters.
using AEEventHandler = std::function<OSStatus(const AppleEvent& event, AppleEvent* reply)>;

/// Makes `handler` answer these events when they reach this process, in place of an earlier one and of the
/// defaults: 'quit' ends the application, whatever dialog is open, and 'rapp' brings it to the front. An
/// empty handler brings those back.
void AEInstallEventHandler(AEEventClass eventClass, AEEventID eventID, AEEventHandler handler);

/// Hands an event that reached this process to its handler; errAEEventNotHandled when it has none.
OSStatus AEProcessAppleEvent(const AppleEvent& event, AppleEvent* reply);

/// Whether a quit event is ending the application. What follows a dialog that it closed is better left
/// undone.
bool AEIsQuitting();
