// SPDX-License-Identifier: MIT
#pragma once

#include "platform/location/StoredLocation.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <vector>

/// What tzdata's text files say, which lie in `TimeZone::zoneInfoFolder`.
namespace ZoneTable {

/// A row of zone.tab or zone1970.tab.
struct Row {
    QByteArray country; ///< ISO 3166-1, two letters; the first of several
    QByteArray zone;    ///< "Europe/Berlin"
    StoredLocation::Place place;
};

/// The words of each line of a file that has `word` in it. Only those lines are taken apart: the files are
/// long, and this is on the program's way to its icon. A file that can't be read is logged and has no lines;
/// one that there isn't is logged only where it `isNeeded`.
std::vector<QList<QByteArray>> linesWith(const QByteArray& word, const QString& fileName, char separator,
                                         bool isNeeded = false);

/// The rows of a table that have `word` in them and make sense.
std::vector<Row> rowsWith(const QByteArray& word, const QString& fileName, bool isNeeded = false);

} // namespace ZoneTable
