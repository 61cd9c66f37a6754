// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraStringUtilities.h"

#include "platform/carbon/Processes.h"
#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include <unistd.h>

bool ExtraStringUtilities::contains(const QString& text, const QString& part) {
    return !part.isEmpty() && text.contains(part, Qt::CaseInsensitive);
}

QString ExtraStringUtilities::stringWithFloat(float number) {
    return QString::number(static_cast<double>(number), 'f', 3);
}

QString ExtraStringUtilities::stringWithInteger(std::int64_t number) {
    return QString::number(number);
}

QString ExtraStringUtilities::stringWithOSVersion() {
    return QString::number(ExtraApplicationUtilities::systemVersion(), 16);
}

bool ExtraStringUtilities::findProcess(const QString& bundleIdentifier, ProcessSerialNumber* process) {
    ProcessSerialNumber candidate = kNoProcess;
    while (GetNextProcess(&candidate) == noErr) {
        const QVariantMap information = ProcessInformationCopyDictionary(candidate);
        const QString identifier = information.value(QStringLiteral("CFBundleIdentifier")).toString();
        if (identifier.isEmpty() || identifier.compare(bundleIdentifier, Qt::CaseInsensitive) != 0 ||
            information.value(QStringLiteral("pid")).toInt() == getpid())
            continue;
        if (process)
            *process = candidate;
        return true;
    }
    return false;
}
