// SPDX-License-Identifier: MIT
#include "platform/locale/Clock.h"

namespace {
std::optional<QDateTime> heldDate;
}

QDateTime Clock::now() {
    return heldDate ? *heldDate : QDateTime::currentDateTimeUtc();
}

Clock::Hold::Hold() : Hold(QDateTime::currentDateTimeUtc()) {
}

Clock::Hold::Hold(const QDateTime& instant) : outermost_(!heldDate) {
    if (outermost_)
        heldDate = instant.toUTC();
}

Clock::Hold::~Hold() {
    if (outermost_)
        heldDate.reset();
}
