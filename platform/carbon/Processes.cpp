// SPDX-License-Identifier: MIT
#include "platform/carbon/Processes.h"

#include "platform/foundation/NSBundle.h"
#include "platform/foundation/NSLog.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QRegularExpression>
#include <QWidget>

#include <algorithm>

#include <unistd.h>

namespace {

struct RunningProcess {
    std::uint32_t pid;
    QString bundleIdentifier;
};

/// The processes that announced themselves, by process number; the running one is always among them.
std::vector<RunningProcess> runningProcesses() {
    const auto self = static_cast<std::uint32_t>(getpid());
    std::vector<RunningProcess> list{{self, NSBundle::mainBundle().bundleIdentifier()}};
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return list;
    static const QRegularExpression announced(QStringLiteral("^([^:].*)\\.pid(\\d{1,9})$"));
    const QStringList names = bus.interface()->registeredServiceNames();
    for (const QString& name : names) {
        const auto match = announced.match(name);
        const std::uint32_t pid = match.captured(2).toUInt();
        if (match.hasMatch() && pid != self)
            list.push_back({pid, match.captured(1)});
    }
    std::sort(list.begin(), list.end(), [](const auto& a, const auto& b) { return a.pid < b.pid; });
    return list;
}

} // namespace

OSStatus GetNextProcess(ProcessSerialNumber* process) {
    for (const RunningProcess& running : runningProcesses()) {
        if (running.pid > process->lowLongOfPSN) {
            *process = {0, running.pid};
            return noErr;
        }
    }
    *process = kNoProcess;
    return procNotFound;
}

QVariantMap ProcessInformationCopyDictionary(const ProcessSerialNumber& process) {
    for (const RunningProcess& running : runningProcesses()) {
        if (running.pid == process.lowLongOfPSN)
            return {{QStringLiteral("CFBundleIdentifier"), running.bundleIdentifier},
                    {QStringLiteral("pid"), static_cast<int>(running.pid)}};
    }
    return {};
}

OSStatus GetCurrentProcess(ProcessSerialNumber* process) {
    *process = {0, static_cast<std::uint32_t>(getpid())};
    return noErr;
}

OSStatus SetFrontProcess(const ProcessSerialNumber& process) {
    if (process.lowLongOfPSN != static_cast<std::uint32_t>(getpid()))
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
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString name = QStringLiteral("%1.pid%2").arg(bundleIdentifier).arg(getpid());
    if (bus.isConnected() && bus.registerService(name))
        return true;
    NSLog(QStringLiteral("No D-Bus session bus (%1); other copies can't be found.")
              .arg(bus.lastError().message()));
    return false;
}
