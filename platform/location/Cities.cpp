// SPDX-License-Identifier: MIT
#include "platform/location/Cities.h"

#include "platform/location/ZoneTable.h"
#include "platform/log/Log.h"

#include <QCollator>

#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/tznames.h>

#include <algorithm>
#include <memory>

namespace {

QString fromICU(const icu::UnicodeString& text) {
    return QString::fromUtf16(text.getBuffer(), text.length());
}

QString cityOf(const QByteArray& zone, const icu::TimeZoneNames& names) {
    const auto id = icu::UnicodeString::fromUTF8(zone.constData());
    // The translations know a zone by the oldest of its names.
    icu::UnicodeString knownId;
    UErrorCode status = U_ZERO_ERROR;
    icu::TimeZone::getCanonicalID(id, knownId, status);
    icu::UnicodeString name;
    return fromICU(names.getExemplarLocationName(U_SUCCESS(status) ? knownId : id, name));
}

QString countryOf(const QByteArray& code, const icu::Locale& language) {
    icu::UnicodeString name;
    return fromICU(icu::Locale("", code.constData()).getDisplayCountry(language, name));
}

/// A text as it is searched: small letters and digits without accents, and single spaces.
QString folded(const QString& text) {
    QString plain = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    plain.removeIf([](QChar c) { return !c.isLetterOrNumber() && !c.isSpace(); });
    return plain.simplified();
}

} // namespace

QList<Cities::City> Cities::cities(const QString& language) {
    const icu::Locale locale(language.toLatin1().constData());
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::TimeZoneNames> names(icu::TimeZoneNames::createInstance(locale, status));
    QList<City> found;
    if (U_FAILURE(status)) {
        logLine(QStringLiteral("No names of cities: %1.").arg(QLatin1String(u_errorName(status))));
        return found;
    }
    for (const ZoneTable::Row& row : ZoneTable::rowsWith("\t", QStringLiteral("zone.tab"), true))
        found.append({cityOf(row.zone, *names), countryOf(row.country, locale),
                      QString::fromLatin1(row.zone).section(u'/', -1), row.place});
    const QCollator alphabet{QLocale(language)};
    std::ranges::sort(found, alphabet, &City::name);
    return found;
}

Cities::Match Cities::match(const City& city, const QString& typed) {
    const QString text = folded(city.name + u' ' + city.country + u' ' + city.zoneName);
    const QString start = folded(typed);
    const QStringList words = start.split(u' ', Qt::SkipEmptyParts);
    if (!std::ranges::all_of(words, [&](const QString& word) { return text.contains(word); }))
        return Match::None;
    return text.startsWith(start) ? Match::Start : Match::Part;
}
