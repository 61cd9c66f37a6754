// SPDX-License-Identifier: MIT
#include "platform/location/StoredLocation.h"

#include "tests/TestMain.h"

namespace {

void expectPlace(const char* zone, double latitude, double longitude) {
    const InZone here(zone);
    const CaughtLog log;
    const auto place = StoredLocation::place().value_or(StoredLocation::Place());
    EXPECT_NEAR(place.latitude, latitude, 0.01) << zone;
    EXPECT_NEAR(place.longitude, longitude, 0.01) << zone;
}

} // namespace

TEST(StoredLocationTest, TheZonesCityIsThePlace) {
    expectPlace("America/New_York", 40.714, -74.006);
    expectPlace("Australia/Sydney", -33.867, 151.217);
    // Second names stand for the same city.
    expectPlace("US/Eastern", 40.714, -74.006);
    expectPlace("Asia/Calcutta", 22.533, 88.367);
    expectPlace("Europe/Oslo", 59.917, 10.75); // a city of its own only in the older table
    for (const char* zone : {"UTC", "<+0530>-5:30", "EST5EDT,M3.2.0,M11.1.0", "Nowhere/Atall"})
        expectPlace(zone, 0, 0);
    // A broken table clears the places that it breaks.
    const QTemporaryDir folder;
    const WithEnvironment tables("TZDIR", folder.path().toLocal8Bit());
    writeFile(
        folder.filePath(u"zone1970.tab"_s),
        "DE\t+52x0+01322\tEurope/Berlin\nDE\nUS\t+99999999999999999999+0\tAmerica/New_York\n\xff\xfe\t\t\n"
        "AU\t-3352+15113\tAustralia/Sydney");
    expectPlace("Europe/Berlin", 0, 0);
    expectPlace("America/New_York", 0, 0);
    expectPlace("Australia/Sydney", -33.867, 151.217);
}
