// SPDX-License-Identifier: MIT
#include "platform/location/ZoneTable.h"

#include "platform/files/RegularFile.h"
#include "platform/locale/TimeZone.h"
#include "platform/log/Log.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>

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

} // namespace

std::vector<QList<QByteArray>> ZoneTable::linesWith(const QByteArray& word, const QString& fileName,
                                                    char separator, bool isNeeded) {
    if (word.isEmpty())
        return {};
    const QString path = TimeZone::zoneInfoFolder() + QLatin1Char('/') + fileName;
    QString error;
    const QByteArray text = RegularFile::read(path, kLargestTable, &error).value_or(QByteArray());
    if (!error.isEmpty() && (isNeeded || QFileInfo::exists(path)))
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

std::vector<ZoneTable::Row> ZoneTable::rowsWith(const QByteArray& word, const QString& fileName,
                                                bool isNeeded) {
    std::vector<Row> rows;
    for (const QList<QByteArray>& columns : linesWith(word, fileName, '\t', isNeeded)) {
        if (columns.size() < 3 || columns[0].startsWith('#'))
            continue;
        if (const auto place = placeOf(columns[1]))
            rows.push_back({columns[0].left(2), columns[2], *place});
    }
    return rows;
}
