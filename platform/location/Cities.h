// SPDX-License-Identifier: MIT
#pragma once

#include "platform/location/StoredLocation.h"

#include <QList>
#include <QString>

/// The cities of tzdata's zone.tab, one for each time zone in each country.
namespace Cities {

struct City {
    QString name;
    QString country;
    QString zoneName; ///< tzdata's own: "Sao_Paulo"
    StoredLocation::Place place;
};

/// All cities with their names in `language` ("de", "pt_BR"), in its alphabetical order. None, with a log
/// line, when there is no table that can be read or no names.
QList<City> cities(const QString& language);

/// How a city answers a search: not at all, by its text, or by the start of it.
enum class Match { None, Part, Start };

/// A city is found when each word of `typed` is a part of its name, country or zone's name, which a keyboard
/// without the language's letters can type. Case, accents and punctuation don't count: "sao" finds "São
/// Paulo". No words find every city.
Match match(const City& city, const QString& typed);

} // namespace Cities
