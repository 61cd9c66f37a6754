// SPDX-License-Identifier: MIT
#include "platform/location/StoredLocation.h"

#include "tests/TestMain.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

std::pair<double, double> placeIn(const char* zone) {
    const InZone here(zone);
    const auto [latitude, longitude] = StoredLocation::place().value_or(StoredLocation::Place());
    return {latitude, longitude};
}

void expectPlace(const char* zone, double latitude, double longitude) {
    const auto [north, east] = placeIn(zone);
    EXPECT_NEAR(north, latitude, 0.01) << zone;
    EXPECT_NEAR(east, longitude, 0.01) << zone;
}

} // namespace

TEST(StoredLocationTest, TheZonesCityIsThePlace) {
    expectPlace("Europe/Berlin", 52.5, 13.367);
    expectPlace("America/New_York", 40.714, -74.006);
    expectPlace("Australia/Sydney", -33.867, 151.217);
    expectPlace("America/Argentina/Buenos_Aires", -34.6, -58.45);
    // Second names stand for the same city.
    expectPlace("US/Eastern", 40.714, -74.006);
    expectPlace("Asia/Calcutta", 22.533, 88.367);
    expectPlace("Europe/Oslo", 59.917, 10.75); // a city of its own only in the older table
}

TEST(StoredLocationTest, AZoneWithoutACityClearsThePlace) {
    for (const char* zone : {"UTC", "Etc/GMT+5", "<+0530>-5:30", "EST5EDT,M3.2.0,M11.1.0", "Nowhere/Atall"}) {
        const CaughtLog log;
        EXPECT_EQ(placeIn(zone), (std::pair{0.0, 0.0})) << zone;
    }
}

TEST(StoredLocationTest, BrokenTablesClearThePlace) {
    const QTemporaryDir folder;
    const WithEnvironment tables("TZDIR", folder.path().toLocal8Bit());
    QFile table(folder.filePath(QStringLiteral("zone1970.tab")));
    ASSERT_TRUE(table.open(QIODevice::WriteOnly));
    table.write(
        "DE\t+52x0+01322\tEurope/Berlin\nDE\nUS\t+99999999999999999999+0\tAmerica/New_York\n\xff\xfe\t\t\n"
        "AU\t-3352+15113\tAustralia/Sydney");
    table.close();
    expectPlace("Europe/Berlin", 0, 0);
    expectPlace("America/New_York", 0, 0);
    expectPlace("Australia/Sydney", -33.867, 151.217);
}
