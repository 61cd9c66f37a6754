// SPDX-License-Identifier: MIT
#include "platform/location/StoredLocation.h"

#include "platform/locale/TimeZone.h"
#include "platform/location/ZoneTable.h"

#include <QByteArray>

namespace {

using StoredLocation::Place;

std::optional<Place> placeInTable(const QString& table, const QByteArray& zoneId) {
    for (const ZoneTable::Row& row : ZoneTable::rowsWith(zoneId, table)) {
        if (row.zone == zoneId)
            return row.place;
    }
    return std::nullopt;
}

/// The zone that a second name ("US/Eastern", "Asia/Calcutta") stands for.
QByteArray canonicalName(const QByteArray& zoneId) {
    for (const QList<QByteArray>& words : ZoneTable::linesWith(zoneId, QStringLiteral("tzdata.zi"), ' ')) {
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
        if (const QByteArray name = lastPlace ? zoneId : canonicalName(zoneId); name != zoneId)
            lastPlace = placeInTables(name);
    }
    return lastPlace;
}

} // namespace

std::optional<Place> StoredLocation::place() {
    return placeOfZone(TimeZone::systemTimeZone().id());
}
