// SPDX-License-Identifier: MIT
#include "platform/system/SystemVersion.h"

#include "platform/files/RegularFile.h"
#include "platform/log/Log.h"

#include <QSysInfo>
#include <QVersionNumber>

#include <algorithm>

namespace {

std::array<int, 3> leadingNumbers(const QString& text) {
    const QVersionNumber version = QVersionNumber::fromString(text);
    std::array<int, 3> numbers{};
    for (int i = 0; i < 3; ++i)
        numbers[static_cast<std::size_t>(i)] = std::min(version.segmentAt(i), 99);
    return numbers;
}

QString productVersion() {
    for (const char* file : {"/etc/os-release", "/usr/lib/os-release"}) {
        if (RegularFile::isOtherThing(QString::fromLatin1(file))) { // Qt would wait for it
            logLine(QStringLiteral("%1 is no regular file, and is not read.").arg(QString::fromLatin1(file)));
            return {};
        }
    }
    return QSysInfo::productVersion();
}

} // namespace

std::array<int, 3> systemVersionNumbers() {
    const auto ofSystem = leadingNumbers(productVersion());
    return ofSystem[0] > 0 ? ofSystem : leadingNumbers(QSysInfo::kernelVersion());
}
