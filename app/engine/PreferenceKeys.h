// SPDX-License-Identifier: MIT
#pragma once

#include "app/engine/CMoonHelper.h"
#include "platform/preferences/PreferenceKey.h"

#include <QString>

#include <array>

/// The program's own preferences.
namespace PreferenceKeys {

/// A tTimeZoneType; any other value behaves as GMT.
inline constexpr PreferenceKey<int> timeZoneType{QLatin1String("LVTimeZoneType"), kTimeZoneSystem};
inline constexpr PreferenceKey<float> customOffset{QLatin1String("LVTimeZoneCustomGMTOffset")}; ///< hours
/// The custom offset's entry in the menu of time zones.
inline const PreferenceKey<QString> customOffsetTitle{QLatin1String("LVTimeZoneGMTOffsetTitle"),
                                                      QStringLiteral("GMT +0")};

/// The user's place in degrees, north and east positive. The start registers the place that the system keeps
/// as their default.
inline constexpr PreferenceKey<float> latitude{QLatin1String("LVLatitude"), 0.0F, {-90.0F, 90.0F}};
inline constexpr PreferenceKey<float> longitude{QLatin1String("LVLongitude"), 0.0F, {-180.0F, 180.0F}};

inline constexpr PreferenceKey<float> brightness{QLatin1String("LVBrightness"), 0.5F}; ///< of the pictures

/// Whether the panel's sections are open.
inline constexpr std::array<PreferenceKey<bool>, 5> disclosures{{
    {QLatin1String("LVCalculationDisclosure"), true},
    {QLatin1String("LVInformationDisclosure"), true},
    {QLatin1String("LVRiseSetDisclosure"), true},
    {QLatin1String("LVSettingsDisclosure"), true},
    {QLatin1String("LVMoonDisclosure"), true},
}};

inline constexpr PreferenceKey<bool> tellsQuarters{QLatin1String("LVTellQuarters")}; ///< by notifications
/// The last quarter that was told, by its number (`Quarters::takeDue`).
inline constexpr PreferenceKey<int> toldQuarter{QLatin1String("LVToldQuarter")};

/// The application's path that the user was last warned about.
inline const PreferenceKey<QString> warnedPath{QLatin1String("LVNotApplicationsFolderWarning")};

} // namespace PreferenceKeys
