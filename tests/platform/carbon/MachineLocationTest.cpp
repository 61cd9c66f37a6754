// SPDX-License-Identifier: MIT
#include "platform/carbon/MachineLocation.h"

#include "tests/TestMain.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

std::pair<double, double> placeIn(const char* zone) {
    const InZone here(zone);
    MachineLocation location;
    ReadLocation(&location);
    return {Frac2X(location.latitude) * 90.0, Frac2X(location.longitude) * 90.0};
}

void expectPlace(const char* zone, double latitude, double longitude) {
    const auto [north, east] = placeIn(zone);
    EXPECT_NEAR(north, latitude, 0.01) << zone;
    EXPECT_NEAR(east, longitude, 0.01) << zone;
}

} // namespace

TEST(MachineLocationTest, TheZonesCityIsThePlace) {
    expectPlace("Europe/Berlin", 52.5, 13.367);
    expectPlace("America/New_York", 40.714, -74.006);
    expectPlace("Australia/Sydney", -33.867, 151.217);
    expectPlace("America/Argentina/Buenos_Aires", -34.6, -58.45);
    // Second names stand for the same city.
    expectPlace("US/Eastern", 40.714, -74.006);
    expectPlace("Asia/Calcutta", 22.533, 88.367);
    expectPlace("Europe/Oslo", 59.917, 10.75); // a city of its own only in the older table
}

TEST(MachineLocationTest, AZoneWithoutACityClearsThePlace) {
    for (const char* zone : {"UTC", "Etc/GMT+5", "<+0530>-5:30", "EST5EDT,M3.2.0,M11.1.0", "Nowhere/Atall"}) {
        const CaughtLog log;
        EXPECT_EQ(placeIn(zone), (std::pair{0.0, 0.0})) << zone;
    }
}

TEST(MachineLocationTest, BrokenTablesClearThePlace) {
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

TEST(MachineLocationTest, TheDaylightSavingByteIsThatOfTheMoment) {
    const InZone newYork("America/New_York");
    for (const auto& [moment, byte] : {std::pair{gmt(2026, 7, 1), -128}, std::pair{gmt(2026, 12, 1), 0}}) {
        const NSDate::Hold present(moment);
        MachineLocation location{1, 2, 0xFFFFFFFF};
        ReadLocation(&location);
        EXPECT_EQ(daylightSavingByte(location), byte);
    }
}

TEST(MachineLocationTest, FractionsAreRoundedAndHeld) {
    EXPECT_EQ(X2Frac(1.0), 1 << 30);
    EXPECT_EQ(X2Frac(-0.5), -(1 << 29));
    EXPECT_EQ(X2Frac(1.4 / (1 << 30)), 1);
    EXPECT_EQ(X2Frac(5.0), 0x7FFFFFFF);
    EXPECT_EQ(X2Frac(-5.0), -0x7FFFFFFF);
    EXPECT_EQ(Frac2X(X2Frac(0.1)), std::nearbyint(0.1 * (1 << 30)) / (1 << 30));
}
