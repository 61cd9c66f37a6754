// SPDX-License-Identifier: MIT
#include "platform/foundation/NSLog.h"

#include <QLoggingCategory>

namespace {
Q_LOGGING_CATEGORY(lumivaneLog, "lumivane", QtInfoMsg)
}

void NSLog(const QString& message) {
    qCInfo(lumivaneLog).noquote() << message;
}
