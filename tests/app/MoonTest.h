// SPDX-License-Identifier: MIT
#pragma once

#include "app/engine/CMoon.h"
#include "app/engine/PreferenceKeys.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "tests/TestMain.h"

/// An instant as the engine counts it.
inline std::uint32_t seconds(const QDateTime& date) {
    return static_cast<std::uint32_t>(date.toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant);
}

/// Year, month, day, hour, minute, second and whether it is past noon.
inline std::array<int, 7> fieldsOf(const tMoonDate& date) {
    return {date.year, date.month, date.day, date.hour, date.minute, date.second, date.isPM};
}

/// The Moon over New York, with preferences that are taken back at the end.
class MoonTest : public testing::Test {
protected:
    MoonTest() { gMoon.Init(); }
    ~MoonTest() override {
        defaults()->remove(PreferenceKeys::timeZoneType);
        defaults()->remove(PreferenceKeys::customOffsetTitle);
        for (const auto& key :
             {PreferenceKeys::customOffset, PreferenceKeys::latitude, PreferenceKeys::longitude})
            defaults()->remove(key);
    }

    static Preferences* defaults() { return Preferences::standard(); }
    static void setZone(int type, float customHours = 0.0F) {
        defaults()->set(PreferenceKeys::timeZoneType, type);
        defaults()->set(PreferenceKeys::customOffset, customHours);
    }
    static void setPlace(float latitude, float longitude) {
        defaults()->set(PreferenceKeys::latitude, latitude);
        defaults()->set(PreferenceKeys::longitude, longitude);
    }
    static const tLunation& lunation(int index) { return *gMoon.FindLunationAtIndex(index); }
    static std::uint32_t firstMoment() { return lunation(0).newMoon; }
    static std::uint32_t lastMoment() { return lunation(kLunationCount - 1).nextNewMoon - 1; }

    const InZone zone_{"America/New_York"};
};
