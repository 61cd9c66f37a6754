// SPDX-License-Identifier: MIT
#include "platform/carbon/MachineLocation.h"

#include "platform/foundation/NSTimeZone.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr double kFractOne = 1 << 30;

QString zoneInfoFolder() {
    const QString named = qEnvironmentVariable("TZDIR");
    return named.isEmpty() ? QStringLiteral("/usr/share/zoneinfo") : named;
}

/// Degrees of one half of an ISO 6709 place, with digits DDMM, DDDMM, DDMMSS or DDDMMSS.
double degrees(const QString& sign, const QString& digits) {
    const bool hasSeconds = digits.size() > 5;
    const qsizetype degreeDigits = digits.size() - (hasSeconds ? 4 : 2);
    double value = digits.left(degreeDigits).toDouble() + digits.mid(degreeDigits, 2).toDouble() / 60.0;
    if (hasSeconds)
        value += digits.mid(degreeDigits + 2, 2).toDouble() / 3600.0;
    return sign == u"-" ? -value : value;
}

struct Place {
    double latitude;
    double longitude;
};

std::optional<Place> placeInTable(const QString& table, const QByteArray& zoneId) {
    QFile file(zoneInfoFolder() + QLatin1Char('/') + table);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const QList<QByteArray> columns = line.split('\t');
        if (line.startsWith('#') || columns.size() < 3 || columns[2] != zoneId)
            continue;
        static const QRegularExpression iso6709(
            QStringLiteral("^([+-])(\\d{4}|\\d{6})([+-])(\\d{5}|\\d{7})$"));
        const auto match = iso6709.match(QString::fromLatin1(columns[1]));
        if (match.hasMatch())
            return Place{degrees(match.captured(1), match.captured(2)),
                         degrees(match.captured(3), match.captured(4))};
    }
    return std::nullopt;
}

/// The zone that a second name ("US/Eastern", "Asia/Calcutta") stands for.
QByteArray canonicalName(const QByteArray& zoneId) {
    QFile file(zoneInfoFolder() + QStringLiteral("/tzdata.zi"));
    if (!file.open(QIODevice::ReadOnly))
        return zoneId;
    while (!file.atEnd()) {
        const QList<QByteArray> words = file.readLine().trimmed().split(' ');
        if (words.size() == 3 && words[0] == "L" && words[2] == zoneId)
            return words[1];
    }
    return zoneId;
}

std::optional<Place> placeInTables(const QByteArray& zoneId) {
    for (const char* table : {"zone1970.tab", "zone.tab"}) {
        if (const auto place = placeInTable(QString::fromLatin1(table), zoneId))
            return place;
    }
    return std::nullopt;
}

/// The place of a zone's city. The last answer is kept: the tables don't change under a running program.
std::optional<Place> placeOfZone(const QByteArray& zoneId) {
    static QByteArray lastZone;
    static std::optional<Place> lastPlace;
    if (zoneId != lastZone) {
        lastZone = zoneId;
        lastPlace = placeInTables(zoneId);
        if (!lastPlace)
            lastPlace = placeInTables(canonicalName(zoneId));
    }
    return lastPlace;
}

} // namespace

double Frac2X(Fract value) {
    return value / kFractOne;
}

Fract X2Frac(double value) {
    constexpr double kLargest = std::numeric_limits<Fract>::max();
    return static_cast<Fract>(std::clamp(std::nearbyint(value * kFractOne), -kLargest, kLargest));
}

void ReadLocation(MachineLocation* location) {
    *location = {};
    const QTimeZone zone = NSTimeZone::systemTimeZone();
    if (const auto place = placeOfZone(zone.id())) {
        location->latitude = X2Frac(place->latitude / 90.0);
        location->longitude = X2Frac(place->longitude / 90.0);
    }
    if (NSTimeZone::isDaylightSavingTime(zone))
        location->gmtDelta = 0x80;
}
