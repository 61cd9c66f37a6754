// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/AppleEvents.h"
#include "platform/carbon/Processes.h"

#include <optional>
#include <vector>

/// Stands for the system's background programs that answer events, and for the part of Launch Services that
/// finds and starts them. Backed by objects in this process, which start nothing until they are launched.

constexpr OSType kSystemEventsSignature = fourCharCode("sevs");

constexpr OSStatus kLSApplicationNotFoundErr = -10814;
constexpr std::uint32_t kLSLaunchDefaults = 1;

/// An application that can be launched, by the creator signature that is its one name here.
struct LSApplicationRef {
    OSType creator = 0;
};

struct LSApplicationParameters {
    std::uint32_t flags = kLSLaunchDefaults;
    LSApplicationRef application;
};

/// The application with this creator signature; kLSApplicationNotFoundErr when there is none.
OSStatus LSFindApplicationForInfo(OSType creator, LSApplicationRef* application);

/// Launches an application, unless it runs already, and gives its serial number.
OSStatus LSOpenApplication(const LSApplicationParameters& parameters, ProcessSerialNumber* process);

namespace Agents {

struct RunningAgent {
    ProcessSerialNumber process; ///< its high part is never 0, so that it is no other process's
    OSType creator;
    AEEventHandler handler;
};

/// Makes `handler` the agent with this signature, in place of an earlier one, which ends; it runs once it is
/// launched. An empty handler takes the agent away. System Events is there from the start.
void install(OSType creator, AEEventHandler handler);

/// The agents that run, in the order of their serial numbers.
std::vector<RunningAgent> running();
std::optional<RunningAgent> running(const ProcessSerialNumber& process);

} // namespace Agents
