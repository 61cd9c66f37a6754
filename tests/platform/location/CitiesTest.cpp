// SPDX-License-Identifier: MIT
#include "platform/location/Cities.h"

#include "tests/TestMain.h"

#include <algorithm>

using Cities::Match;

TEST(CitiesTest, AreNamedAndSortedInEachLanguage) {
    const struct {
        const char* language;
        const char* name;
        const char* country;
        double latitude;
        double longitude;
        const char* before; ///< an accent makes no other letter
    } rows[] = {{"en", "Brussels", "Belgium", 50.833, 4.333, "Brunei"},
                {"de", "São Paulo", "Brasilien", -23.533, -46.617, "Santo Domingo"},
                {"ja", "東京", "日本", 35.654, 139.745, nullptr}};
    for (const auto& [language, name, country, latitude, longitude, before] : rows) {
        const QList<Cities::City> all = Cities::cities(QLatin1String(language));
        EXPECT_GT(all.size(), 400);
        const auto city = std::ranges::find(all, QString::fromUtf8(name), &Cities::City::name);
        ASSERT_TRUE(city != all.begin() && city != all.end()) << name;
        EXPECT_EQ(city->country, QString::fromUtf8(country));
        EXPECT_NEAR(city->place.latitude, latitude, 0.001) << name;
        EXPECT_NEAR(city->place.longitude, longitude, 0.001) << name;
        EXPECT_TRUE(!before || std::prev(city)->name == QLatin1String(before)) << name;
    }
}

TEST(CitiesTest, AreFoundByAnyPartWithoutAccents) {
    const Cities::City saoPaulo{u"São Paulo"_s, u"Brazil"_s, {}, {}};
    const Cities::City portAuPrince{u"太子港"_s, u"Haïti"_s, u"Port-au-Prince"_s, {}};
    using Row = std::pair<QString, Match>;
    for (const auto& [typed, match] :
         {Row{u""_s, Match::Start}, Row{u"SAO p"_s, Match::Start}, Row{u" são"_s, Match::Start},
          Row{u"brazil s"_s, Match::Part}, Row{u"sao x"_s, Match::None}})
        EXPECT_EQ(Cities::match(saoPaulo, typed), match) << qPrintable(typed);
    EXPECT_EQ(Cities::match(portAuPrince, u"port au haiti"_s), Match::Part);
}
