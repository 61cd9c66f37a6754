// SPDX-License-Identifier: MIT
#include "platform/foundation/NSTimeZone.h"

#include "platform/foundation/NSDate.h"
#include "platform/foundation/NSLog.h"

QTimeZone NSTimeZone::systemTimeZone() {
    QTimeZone zone = QTimeZone::systemTimeZone();
    if (zone.isValid())
        return zone;
    static QByteArray lastReported;
    const QByteArray named = qgetenv("TZ");
    if (lastReported != named || lastReported.isNull()) {
        lastReported = named.isNull() ? QByteArray("") : named;
        NSLog(QStringLiteral("The system's time zone \"%1\" is not known; using UTC.")
                  .arg(QString::fromLocal8Bit(named)));
    }
    return QTimeZone::utc();
}

QString NSTimeZone::name(const QTimeZone& zone) {
    return QString::fromLatin1(zone.id());
}

int NSTimeZone::secondsFromGMT(const QTimeZone& zone) {
    return zone.offsetFromUtc(NSDate::date());
}

bool NSTimeZone::isDaylightSavingTime(const QTimeZone& zone) {
    return zone.isDaylightTime(NSDate::date());
}
