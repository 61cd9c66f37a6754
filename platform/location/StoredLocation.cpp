// SPDX-License-Identifier: MIT
#include "platform/location/StoredLocation.h"

#include "platform/locale/TimeZone.h"
#include "platform/location/ZoneTable.h"

#include <QByteArray>

namespace {

using StoredLocation::Place;

std::optional<Place> placeInTables(const QByteArray& zoneId) {
    for (const auto& table : {QStringLiteral("zone1970.tab"), QStringLiteral("zone.tab")}) {
        for (const ZoneTable::Row& row : ZoneTable::rowsWith(zoneId, table)) {
            if (row.zone == zoneId)
                return row.place;
        }
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

} // namespace

std::optional<Place> StoredLocation::place() {
    // The last answer is kept: the tables don't change under a running program.
    static QByteArray lastZone;
    static std::optional<Place> lastPlace;
    const QByteArray zoneId = TimeZone::systemTimeZone().id();
    if (zoneId != lastZone) {
        lastZone = zoneId;
        lastPlace = placeInTables(zoneId);
        if (const QByteArray name = lastPlace ? zoneId : canonicalName(zoneId); name != zoneId)
            lastPlace = placeInTables(name);
    }
    return lastPlace;
}
