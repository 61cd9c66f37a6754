// SPDX-License-Identifier: MIT
#include "platform/carbon/Gestalt.h"

#include "platform/foundation/NSLog.h"
#include "platform/foundation/RegularFile.h"

#include <QSysInfo>
#include <QVersionNumber>

#include <algorithm>
#include <array>

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
            NSLog(QStringLiteral("%1 is no regular file, and is not read.").arg(QString::fromLatin1(file)));
            return {};
        }
    }
    return QSysInfo::productVersion();
}

std::array<int, 3> versionNumbers() {
    // A rolling distribution states no version; its kernel's release is the next best number.
    const auto ofSystem = leadingNumbers(productVersion());
    return ofSystem[0] > 0 ? ofSystem : leadingNumbers(QSysInfo::kernelVersion());
}

} // namespace

OSStatus Gestalt(OSType selector, std::int32_t* response) {
    const auto [major, minor, bugFix] = versionNumbers();
    switch (selector) {
    case fourCharCode("sys1"):
        *response = major;
        return noErr;
    case fourCharCode("sys2"):
        *response = minor;
        return noErr;
    case fourCharCode("sys3"):
        *response = bugFix;
        return noErr;
    case fourCharCode("sysv"):
        *response = major / 10 << 12 | major % 10 << 8 | std::min(minor, 9) << 4 | std::min(bugFix, 9);
        return noErr;
    default:
        return gestaltUndefSelectorErr;
    }
}
