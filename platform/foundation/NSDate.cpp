// SPDX-License-Identifier: MIT
#include "platform/foundation/NSDate.h"

namespace {
std::optional<QDateTime> heldDate;
}

QDateTime NSDate::date() {
    return heldDate ? *heldDate : QDateTime::currentDateTimeUtc();
}

NSDate::Hold::Hold() : Hold(QDateTime::currentDateTimeUtc()) {
}

NSDate::Hold::Hold(const QDateTime& instant) : outermost_(!heldDate) {
    if (outermost_)
        heldDate = instant.toUTC();
}

NSDate::Hold::~Hold() {
    if (outermost_)
        heldDate.reset();
}
