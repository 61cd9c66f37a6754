// SPDX-License-Identifier: MIT
#include "app/model/PanelModel.h"

#include "app/engine/CMoon.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "tests/TestMain.h"

#include <gtest/gtest.h>

#include <random>

namespace {

std::uint32_t seconds(const QDateTime& date) {
    return static_cast<std::uint32_t>(date.toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant);
}

std::uint32_t firstMoment() {
    return gMoon.FindLunationAtIndex(0)->newMoon;
}

std::uint32_t lastMoment() {
    return gMoon.FindLunationAtIndex(kLunationCount - 1)->nextNewMoon - 1;
}

struct Zone {
    int type;
    float hours;
};

class PanelModelTest : public testing::Test {
protected:
    ~PanelModelTest() override {
        for (const char* key : {"LVTimeZoneType", "LVTimeZoneCustomGMTOffset", "LVTimeZoneGMTOffsetTitle",
                                "LVLatitude", "LVLongitude"})
            defaults()->removeObjectForKey(QLatin1String(key));
    }

    static Preferences* defaults() { return Preferences::standard(); }

    void setZone(const Zone& zone) {
        defaults()->setFloat(zone.hours, QStringLiteral("LVTimeZoneCustomGMTOffset"));
        defaults()->setInteger(zone.type, QStringLiteral("LVTimeZoneType"));
        model_.followZone();
    }

    static bool loadTable() {
        gMoon.Init();
        return true;
    }

    const InZone zone_{"America/New_York"};
    const bool loaded_ = loadTable();
    PanelModel model_;
};

} // namespace

TEST_F(PanelModelTest, WhatIsSetComesBackAndStepsAreExactInEveryZone) {
    std::mt19937 random(20261003);
    std::uniform_int_distribution<std::uint32_t> inTable(firstMoment() + 86400, lastMoment() - 86400);
    // 01:30 comes twice on this night, 02:30 not at all on that one.
    QList<std::uint32_t> moments{seconds(gmt(2026, 11, 1, 5, 30)), seconds(gmt(2026, 11, 1, 6, 30)),
                                 seconds(gmt(2026, 3, 8, 6, 59, 59)), seconds(gmt(2026, 3, 8, 7, 30))};
    while (moments.size() < 200)
        moments.append(inTable(random));
    for (const QDateTime& now : {gmt(2026, 7, 1), gmt(2026, 12, 1)}) {
        const Clock::Hold present(now);
        for (const Zone& zone :
             {Zone{1, 0}, Zone{2, 0}, Zone{3, 5.5F}, Zone{3, -3.75F}, Zone{3, 12.75F}, Zone{3, -1000.0F}}) {
            setZone(zone);
            for (const std::uint32_t moment : std::as_const(moments)) {
                model_.moveTo(moment);
                ASSERT_EQ(model_.moment(), moment) << zone.type << ' ' << zone.hours;
                for (const int hours : {1, -1, -24, 24}) {
                    const std::uint32_t before = model_.moment();
                    model_.moveByHours(hours);
                    ASSERT_EQ(model_.moment(), before + static_cast<std::uint32_t>(hours * 3600));
                }
            }
        }
    }
}

TEST_F(PanelModelTest, EveryMoveStopsAtTheTablesEnds) {
    const Clock::Hold present(gmt(2026, 7, 1));
    const std::uint32_t first = firstMoment();
    const std::uint32_t last = lastMoment();
    const auto fullMoon = [](int index) { return gMoon.FindLunationAtIndex(index)->fullMoon; };
    for (const Zone& zone : {Zone{1, 0}, Zone{2, 0}, Zone{3, 12.75F}, Zone{3, -3.75F}, Zone{3, 1000.0F},
                             Zone{3, -1e6F}, Zone{3, 3e38F}}) {
        SCOPED_TRACE(zone.hours);
        setZone(zone);
        const auto expectAfter = [this](auto move, auto value, std::uint32_t moment) {
            (model_.*move)(value);
            EXPECT_EQ(model_.moment(), moment) << value;
        };
        expectAfter(&PanelModel::moveTo, -1, first);
        expectAfter(&PanelModel::moveTo, std::int64_t{first} - 1, first);
        expectAfter(&PanelModel::moveByHours, -1, first);
        expectAfter(&PanelModel::moveByHours, -1000000, first);
        expectAfter(&PanelModel::moveToPhase, 0, first);
        expectAfter(&PanelModel::moveByLunations, -1, fullMoon(0));
        expectAfter(&PanelModel::moveByLunations, -kLunationCount, fullMoon(0));

        expectAfter(&PanelModel::moveTo, std::int64_t{1} << 33, last);
        expectAfter(&PanelModel::moveTo, std::int64_t{last} + 1, last);
        expectAfter(&PanelModel::moveByHours, 24, last);
        expectAfter(&PanelModel::moveByHours, 1000000, last);
        expectAfter(&PanelModel::moveToPhase, 4, last); // it belongs to no lunation of the table
        expectAfter(&PanelModel::moveByLunations, 1, fullMoon(kLunationCount - 1));
        expectAfter(&PanelModel::moveByLunations, kLunationCount, fullMoon(kLunationCount - 1));
        EXPECT_EQ(model_.lines().lunation, u"Lunation 1447");
    }
}

TEST_F(PanelModelTest, QuartersAndLunationsAreThoseOfTheMoment) {
    const tLunation* lunation = gMoon.FindLunationAtIndex(1076);
    const std::pair<int, std::uint32_t> phases[]{{0, lunation->newMoon},     {1, lunation->firstQuarter},
                                                 {2, lunation->fullMoon},    {3, lunation->lastQuarter},
                                                 {4, lunation->nextNewMoon}, {7, lunation->newMoon},
                                                 {-1, lunation->newMoon}};
    for (const auto& [phase, instant] : phases) {
        model_.moveTo(lunation->lastQuarter + 1);
        model_.moveToPhase(phase);
        EXPECT_EQ(model_.moment(), instant) << phase;
    }
    for (const auto& [from, count, index] :
         {std::tuple{lunation->fullMoon + 100000, 0, 1076}, std::tuple{lunation->newMoon, -1, 1075},
          std::tuple{lunation->newMoon, 12, 1088}}) {
        model_.moveTo(from);
        model_.moveByLunations(count);
        EXPECT_EQ(model_.moment(), gMoon.FindLunationAtIndex(index)->fullMoon);
        EXPECT_NEAR(PanelModel::fractionOf(model_.moment()), 0.5, 0.04);
    }
    model_.moveTo(lunation->fullMoon);
    for (const double fraction : {0.025, 0.5, 0.975}) {
        model_.moveTo(model_.momentAtFraction(fraction));
        EXPECT_NEAR(PanelModel::fractionOf(model_.moment()), fraction, 1e-6);
        EXPECT_EQ(gMoon.GetLunation(model_.moment()), 1076);
    }
    model_.moveTo(lunation->nextNewMoon - 9);
    EXPECT_EQ(model_.lines().age, u"0d 0h 0m since new moon");
    EXPECT_EQ(model_.lines().lunation, u"Lunation 1076");
}

TEST_F(PanelModelTest, AnotherZoneKeepsThePickerAndMovesTheMoment) {
    const Clock::Hold present(gmt(2026, 7, 1));
    setZone({2, 0});
    const std::uint32_t moment = seconds(gmt(2026, 2, 1, 12));
    model_.moveTo(moment);
    const QDateTime shown = model_.pickerDate();
    for (const auto& [zone, moved] :
         {std::pair{Zone{1, 0}, -4 * 3600}, std::pair{Zone{3, 5.5F}, -4 * 3600 - 19800},
          std::pair{Zone{3, -3.75F}, -900}, std::pair{Zone{2, 0}, 0}}) {
        setZone(zone);
        EXPECT_EQ(model_.pickerDate(), shown);
        EXPECT_EQ(static_cast<std::int32_t>(model_.moment() - moment), moved) << zone.hours;
    }
    // Where that would lead out of the table the picker gives way.
    for (const auto& [zone, end] :
         {std::pair{Zone{3, -12.0F}, lastMoment()}, std::pair{Zone{3, 12.0F}, firstMoment()}}) {
        setZone({2, 0});
        model_.moveTo(end);
        const QDateTime before = model_.pickerDate();
        setZone(zone);
        EXPECT_EQ(model_.moment(), end);
        EXPECT_NE(model_.pickerDate(), before);
    }
}

TEST_F(PanelModelTest, AClockOutsideTheTableIsToldUntilTheNextMove) {
    for (const auto& [clock, end] :
         {std::pair{gmt(2045, 6, 1), lastMoment()}, std::pair{gmt(1910, 1, 1), firstMoment()}}) {
        const Clock::Hold present(clock);
        PanelModel model;
        EXPECT_EQ(model.moment(), end);
        EXPECT_EQ(model.toolTip(), u"Date out of range");
        model.followZone();
        EXPECT_EQ(model.lines().phase, u"Date out of range") << "that is no move";
        model.moveByHours(0);
        EXPECT_TRUE(model.toolTip().startsWith(model.lines().phase + u'\n' + model.lines().illumination));
        EXPECT_TRUE(model.lines().phase.startsWith(u"Moon is "));
        model.moveToPresent();
        model.setPickerDate(model.pickerDate());
        EXPECT_TRUE(model.lines().phase.startsWith(u"Moon is "));
    }
}

TEST_F(PanelModelTest, TheClipboardHasAllThatThePanelShows) {
    const Clock::Hold present(gmt(2009, 12, 20, 17));
    defaults()->setFloat(40.71417F, QStringLiteral("LVLatitude"));
    defaults()->setFloat(-74.006386F, QStringLiteral("LVLongitude"));
    defaults()->setObject(QStringLiteral("GMT +5.5"), QStringLiteral("LVTimeZoneGMTOffsetTitle"));
    setZone({3, 5.5F});
    model_.moveTo(gMoon.FindLunationAtIndex(1076)->newMoon);
    EXPECT_EQ(model_.clipboardText().replace(QChar(0x202F), u' ').toStdString(), R"(December 16, 2009
5:33:18 PM
GMT +5.5

Lunation 1076
Moon is new
0.000% illumination
0d 0h 0m since new moon
Next full moon is a Cold Moon

Sun Rise/set Sun: 5:44 PM/3:00 AM
Natical Rise/set Nautical Twilight: 4:38 PM/4:05 AM
Moon Rise/set Moon: 6:01 PM/2:10 AM

New 12/16/09, 5:33 PM
Q1 12/24/09, 11:07 PM
Full 1/1/10, 12:43 AM
Q3 1/7/10, 4:10 PM

Longitude/Latitude -74.006386/40.71417)");
    for (const auto& [type, title] : {std::pair{1, "GMT"}, std::pair{2, "System"}, std::pair{7, "GMT"}}) {
        setZone({type, 0});
        EXPECT_EQ(model_.clipboardText().section(u'\n', 2, 2), QLatin1String(title));
    }
}
