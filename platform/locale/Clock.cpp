// SPDX-License-Identifier: MIT
#include "platform/locale/Clock.h"

namespace {
std::optional<QDateTime> heldDate;
unsigned holds = 0;
} // namespace

QDateTime Clock::now() {
    return heldDate ? *heldDate : QDateTime::currentDateTimeUtc();
}

unsigned Clock::holdNumber() {
    return heldDate ? holds : 0;
}

Clock::Hold::Hold() : Hold(QDateTime::currentDateTimeUtc()) {
}

Clock::Hold::Hold(const QDateTime& instant) : outermost_(!heldDate) {
    if (!outermost_)
        return;
    heldDate = instant.toUTC();
    ++holds;
}

Clock::Hold::~Hold() {
    if (outermost_)
        heldDate.reset();
}
