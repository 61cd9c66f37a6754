// SPDX-License-Identifier: MIT
#include "app/model/PanelModel.h"

#include "tests/app/MoonTest.h"

namespace {

struct Zone {
    int type;
    float hours;
};

class PanelModelTest : public MoonTest {
protected:
    void use(const Zone& zone) {
        setZone(zone.type, zone.hours);
        model_.followZone();
    }

    PanelModel model_;
};

} // namespace

TEST_F(PanelModelTest, WhatIsSetComesBackAndStepsAreExactInEveryZone) {
    // 01:30 comes twice on this night, 02:30 not at all on that one.
    const QList<std::uint32_t> moments{seconds(gmt(2026, 11, 1, 5, 30)),
                                       seconds(gmt(2026, 11, 1, 6, 30)),
                                       seconds(gmt(2026, 3, 8, 6, 59, 59)),
                                       seconds(gmt(2026, 3, 8, 7, 30)),
                                       firstMoment() + 86400,
                                       lastMoment() - 86400};
    for (const QDateTime& now : {gmt(2026, 7, 1), gmt(2026, 12, 1)}) {
        const Clock::Hold present(now);
        for (const Zone& zone : {Zone{1, 0}, {2, 0}, {3, 5.5F}, {3, -3.75F}, {3, 12.75F}, {3, -1000.0F}}) {
            use(zone);
            for (const std::uint32_t moment : moments) {
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
    const std::int64_t first = firstMoment();
    const std::int64_t last = lastMoment();
    for (const Zone& zone : {Zone{1, 0}, {2, 0}, {3, 12.75F}, {3, 1000.0F}, {3, -1e6F}, {3, 3e38F}}) {
        SCOPED_TRACE(zone.hours);
        use(zone);
        const auto expectAfter = [this](auto move, auto value, std::int64_t moment) {
            (model_.*move)(value);
            EXPECT_EQ(model_.moment(), moment) << value;
        };
        expectAfter(&PanelModel::moveTo, first - 1, first);
        expectAfter(&PanelModel::moveByHours, -1, first);
        expectAfter(&PanelModel::moveByLunations, -1, lunation(0).fullMoon);
        expectAfter(&PanelModel::moveTo, std::int64_t{1} << 33, last);
        expectAfter(&PanelModel::moveByHours, 1000000, last);
        expectAfter(&PanelModel::moveToPhase, 4, last); // it belongs to no lunation of the table
        expectAfter(&PanelModel::moveByLunations, kLunationCount, lunation(1447).fullMoon);
    }
}

TEST_F(PanelModelTest, ALunationLastsUntilTheNextNewMoon) {
    const tLunation& blue = lunation(1076);
    for (const auto& [phase, instant] :
         {std::pair{4, blue.nextNewMoon}, {7, blue.newMoon}, {-1, blue.newMoon}}) {
        model_.moveTo(blue.lastQuarter + 1);
        model_.moveToPhase(phase);
        EXPECT_EQ(model_.moment(), instant) << phase;
    }
    model_.moveTo(blue.nextNewMoon - 9);
    EXPECT_EQ(model_.lines().age, u"0d 0h 0m since new moon");
    EXPECT_EQ(model_.lines().lunation, u"Lunation 1076");
}

TEST_F(PanelModelTest, AnotherZoneKeepsThePickerAndMovesTheMoment) {
    const Clock::Hold present(gmt(2026, 7, 1));
    const std::uint32_t moment = seconds(gmt(2026, 2, 1, 12));
    use({2, 0});
    model_.moveTo(moment);
    const QDateTime shown = model_.pickerDate();
    using Row = std::tuple<Zone, int>;
    for (const auto& [zone, moved] :
         {Row{Zone{1, 0}, -4 * 3600}, Row{Zone{3, 5.5F}, -4 * 3600 - 19800}, Row{Zone{3, -3.75F}, -900},
          Row{Zone{3, 1e30F}, -4 * 3600}, Row{Zone{2, 0}, 0}}) {
        use(zone);
        EXPECT_EQ(model_.pickerDate(), shown);
        EXPECT_EQ(static_cast<std::int32_t>(model_.moment() - moment), moved) << zone.hours;
    }
    // Where that would lead out of the table the picker gives way.
    for (const auto& [zone, end] :
         {std::pair{Zone{3, -12.0F}, lastMoment()}, {Zone{3, 12.0F}, firstMoment()}}) {
        use({2, 0});
        model_.moveTo(end);
        const QDateTime before = model_.pickerDate();
        use(zone);
        EXPECT_EQ(model_.moment(), end);
        EXPECT_NE(model_.pickerDate(), before);
    }
}

TEST_F(PanelModelTest, AClockOutsideTheTableIsToldUntilTheNextMove) {
    for (const auto& [clock, end] :
         {std::pair{gmt(2045, 6, 1), lastMoment()}, {gmt(1910, 1, 1), firstMoment()}}) {
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
    setPlace(40.71417F, -74.006386F);
    defaults()->set(PreferenceKeys::customOffsetTitle, u"GMT +5.5"_s);
    use({3, 5.5F});
    model_.moveTo(lunation(1076).newMoon);
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
    use({2, 0});
    EXPECT_EQ(model_.clipboardText().section(u'\n', 2, 2), u"System");
}
