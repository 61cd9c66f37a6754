// SPDX-License-Identifier: MIT
#include "platform/carbon/Agents.h"

#include "platform/carbon/SystemEvents.h"

#include <algorithm>
#include <map>

namespace {

struct Table {
    std::map<OSType, AEEventHandler> installed{{kSystemEventsSignature, systemEventsAgent()}};
    std::vector<Agents::RunningAgent> running;
    std::uint32_t lastNumber = 0;
};

Table& table() {
    static Table agents;
    return agents;
}

constexpr std::uint32_t kHighLongOfAgents = 1;

} // namespace

OSStatus LSFindApplicationForInfo(OSType creator, LSApplicationRef* application) {
    if (!table().installed.contains(creator))
        return kLSApplicationNotFoundErr;
    *application = {creator};
    return noErr;
}

OSStatus LSOpenApplication(const LSApplicationParameters& parameters, ProcessSerialNumber* process) {
    Table& agents = table();
    const OSType creator = parameters.application.creator;
    const auto installed = agents.installed.find(creator);
    if (installed == agents.installed.end())
        return kLSApplicationNotFoundErr;
    auto running = std::ranges::find(agents.running, creator, &Agents::RunningAgent::creator);
    if (running == agents.running.end())
        running = agents.running.insert(
            running, {{kHighLongOfAgents, ++agents.lastNumber}, creator, installed->second});
    *process = running->process;
    return noErr;
}

void Agents::install(OSType creator, AEEventHandler handler) {
    std::erase_if(table().running, [creator](const auto& agent) { return agent.creator == creator; });
    if (handler)
        table().installed[creator] = std::move(handler);
    else
        table().installed.erase(creator);
}

std::vector<Agents::RunningAgent> Agents::running() {
    return table().running;
}

std::optional<Agents::RunningAgent> Agents::running(const ProcessSerialNumber& process) {
    const auto found = std::ranges::find(table().running, process, &RunningAgent::process);
    return found == table().running.end() ? std::nullopt : std::optional(*found);
}
