// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraApplicationUtilities.h"

#include "platform/system/SystemVersion.h"

#include <QApplication>
#include <QPixmapCache>
#include <QWidget>

#include <malloc.h>

void ExtraApplicationUtilities::bringToFront() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window->isWindow()) {
            window->raise();
            window->activateWindow();
        }
    }
}

std::uint32_t ExtraApplicationUtilities::systemVersion() {
    static std::uint32_t version = 0;
    if (version != 0)
        return version;
    for (const int number : systemVersionNumbers())
        version = version << 8 | static_cast<std::uint32_t>(number / 10) << 4 |
                  static_cast<std::uint32_t>(number % 10);
    return version;
}

void ExtraApplicationUtilities::keepHeapSmall() {
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
}

void ExtraApplicationUtilities::returnFreedMemory() {
    // A closed window's icons stay in it, and a timer that looks after them.
    QPixmapCache::clear();
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}
