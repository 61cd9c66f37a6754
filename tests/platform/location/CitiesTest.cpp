// SPDX-License-Identifier: MIT
#include "platform/location/Cities.h"

#include "tests/TestMain.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

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
    const Cities::City saoPaulo{QStringLiteral("São Paulo"), QStringLiteral("Brazil"), {}, {}};
    const Cities::City portAuPrince{
        QStringLiteral("太子港"), QStringLiteral("Haïti"), QStringLiteral("Port-au-Prince"), {}};
    for (const auto& [typed, match] : {std::pair{"", Match::Start},
                                       {"SAO p", Match::Start},
                                       {" são", Match::Start},
                                       {"aul", Match::Part},
                                       {"brazil s", Match::Part},
                                       {"sao x", Match::None}})
        EXPECT_EQ(Cities::match(saoPaulo, QString::fromUtf8(typed)), match) << typed;
    EXPECT_EQ(Cities::match(portAuPrince, QStringLiteral("port au haiti")), Match::Part);
}

TEST(CitiesTest, AreNoneWithoutATable) {
    const QTemporaryDir folder;
    const WithEnvironment tables("TZDIR", folder.path().toLocal8Bit());
    const CaughtLog log;
    EXPECT_TRUE(Cities::cities(QStringLiteral("en")).isEmpty());
    EXPECT_EQ(log.lines().size(), 1);
}
