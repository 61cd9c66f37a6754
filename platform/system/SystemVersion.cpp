// SPDX-License-Identifier: MIT
#include "platform/system/SystemVersion.h"

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

} // namespace

std::array<int, 3> systemVersionNumbers() {
    const auto ofSystem = leadingNumbers(QSysInfo::productVersion());
    return ofSystem[0] > 0 ? ofSystem : leadingNumbers(QSysInfo::kernelVersion());
}
