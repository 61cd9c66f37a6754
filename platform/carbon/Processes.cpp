// SPDX-License-Identifier: MIT
#include "platform/carbon/Processes.h"

#include "platform/carbon/Agents.h"
#include "platform/carbon/ProcessService.h"
#include "platform/foundation/NSBundle.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

#include <unistd.h>

namespace {

std::uint32_t ownProcessID() {
    return static_cast<std::uint32_t>(getpid());
}

/// The processes that announced themselves, by process ID; the running one is always among them.
std::vector<ProcessService::Copy> runningCopies() {
    std::vector<ProcessService::Copy> copies = ProcessService::announcedCopies();
    std::erase_if(copies, [](const auto& copy) { return copy.pid == ownProcessID(); });
    copies.push_back({ownProcessID(), NSBundle::mainBundle().bundleIdentifier()});
    std::ranges::sort(copies, {}, &ProcessService::Copy::pid);
    return copies;
}

std::vector<ProcessSerialNumber> runningProcesses() {
    std::vector<ProcessSerialNumber> numbers;
    for (const auto& copy : runningCopies())
        numbers.push_back({0, copy.pid});
    for (const auto& agent : Agents::running())
        numbers.push_back(agent.process);
    return numbers;
}

} // namespace

OSStatus GetNextProcess(ProcessSerialNumber* process) {
    const auto numbers = runningProcesses();
    const auto next = std::ranges::upper_bound(numbers, *process);
    *process = next == numbers.end() ? kNoProcess : *next;
    return next == numbers.end() ? procNotFound : noErr;
}

OSStatus GetProcessInformation(const ProcessSerialNumber& process, ProcessInfoRec* information) {
    if (const auto agent = Agents::running(process))
        *information = {process, agent->creator};
    else if (!ProcessInformationCopyDictionary(process).isEmpty())
        *information = {process, kUnknownSignature};
    else
        return procNotFound;
    return noErr;
}

QVariantMap ProcessInformationCopyDictionary(const ProcessSerialNumber& process) {
    if (Agents::running(process))
        return {{QStringLiteral("pid"), static_cast<int>(ownProcessID())}};
    const auto copies = runningCopies();
    const auto found = std::ranges::find_if(copies, [&](const auto& copy) {
        return process == ProcessSerialNumber{0, copy.pid};
    });
    if (found == copies.end())
        return {};
    return {{QStringLiteral("CFBundleIdentifier"), found->bundleIdentifier},
            {QStringLiteral("pid"), static_cast<int>(found->pid)}};
}

OSStatus GetCurrentProcess(ProcessSerialNumber* process) {
    *process = {0, ownProcessID()};
    return noErr;
}

OSStatus SetFrontProcess(const ProcessSerialNumber& process) {
    if (process != ProcessSerialNumber{0, ownProcessID()})
        return paramErr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window->isWindow()) {
            window->raise();
            window->activateWindow();
        }
    }
    return noErr;
}

bool announceProcess(const QString& bundleIdentifier) {
    return ProcessService::announce(bundleIdentifier);
}
