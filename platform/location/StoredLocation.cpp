// SPDX-License-Identifier: MIT
#include "platform/location/StoredLocation.h"

#include "platform/files/RegularFile.h"
#include "platform/locale/TimeZone.h"
#include "platform/log/Log.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

constexpr qint64 kLargestTable = 4 << 20;

using StoredLocation::Place;

/// Degrees of one half of an ISO 6709 place: a sign and digits DDMM, DDDMM, DDMMSS or DDDMMSS, with
/// `degreeDigits` for the degrees.
std::optional<double> degrees(QByteArrayView half, qsizetype degreeDigits) {
    const QByteArrayView digits = half.sliced(1);
    const qsizetype more = digits.size() - degreeDigits;
    if ((more != 2 && more != 4) || !std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    double value = digits.first(degreeDigits).toInt() + digits.sliced(degreeDigits, 2).toInt() / 60.0;
    if (more == 4)
        value += digits.last(2).toInt() / 3600.0;
    return half.front() == '-' ? -value : value;
}

std::optional<Place> placeOf(const QByteArray& iso6709) {
    const auto isSign = [](char c) { return c == '+' || c == '-'; };
    const qsizetype second = std::max(iso6709.indexOf('+', 1), iso6709.indexOf('-', 1));
    if (second < 0 || !isSign(iso6709.front()))
        return std::nullopt;
    const auto latitude = degrees(QByteArrayView(iso6709).first(second), 2);
    const auto longitude = degrees(QByteArrayView(iso6709).sliced(second), 3);
    return latitude && longitude ? std::optional(Place{*latitude, *longitude}) : std::nullopt;
}

/// The words of each line of a file that has `word` in it. Only those lines are taken apart: the files are
/// long, and this is on the program's way to its icon.
std::vector<QList<QByteArray>> linesWith(const QByteArray& word, const QString& fileName, char separator) {
    if (word.isEmpty())
        return {};
    const QString path = TimeZone::zoneInfoFolder() + QLatin1Char('/') + fileName;
    QString error;
    const QByteArray text = RegularFile::read(path, kLargestTable, &error).value_or(QByteArray());
    if (!error.isEmpty() && QFileInfo::exists(path))
        logLine(QStringLiteral("No place can be looked up in %1: %2.").arg(path, error));
    std::vector<QList<QByteArray>> lines;
    for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at)) {
        const qsizetype start = text.lastIndexOf('\n', at) + 1;
        const qsizetype end = text.indexOf('\n', at);
        at = end < 0 ? text.size() : end;
        lines.push_back(text.mid(start, at - start).trimmed().split(separator));
    }
    return lines;
}

std::optional<Place> placeInTable(const QString& table, const QByteArray& zoneId) {
    for (const QList<QByteArray>& columns : linesWith(zoneId, table, '\t')) {
        if (columns.size() < 3 || columns[0].startsWith('#') || columns[2] != zoneId)
            continue;
        if (const auto place = placeOf(columns[1]))
            return place;
    }
    return std::nullopt;
}

/// The zone that a second name ("US/Eastern", "Asia/Calcutta") stands for.
QByteArray canonicalName(const QByteArray& zoneId) {
    for (const QList<QByteArray>& words : linesWith(zoneId, QStringLiteral("tzdata.zi"), ' ')) {
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
