// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "app/engine/CMoon.h"
#include "app/engine/CMoonHelper.h"
#include "platform/foundation/NSUserDefaults.h"
#include "shared/utilities/classes/ExtraNumberUtilities.h"

namespace {

ApplicationDelegate* theDelegate = nullptr;

constexpr int kSevenDays = 604800;

} // namespace

ApplicationDelegate::ApplicationDelegate() {
    theDelegate = this;
    setupDefaults();
    gMoon.Init();
    setupDefaultPreferences();
    sparkleUpdater_ = std::make_unique<SUUpdater>();
}

ApplicationDelegate::~ApplicationDelegate() {
    theDelegate = nullptr;
}

ApplicationDelegate* ApplicationDelegate::sharedDelegate() {
    return theDelegate;
}

void ApplicationDelegate::setupDefaults() {
    QVariantMap disclosures;
    for (const char* key : {"LVCalculationDisclosure", "LVInformationDisclosure", "LVRiseSetDisclosure",
                            "LVSettingsDisclosure", "LVMoonDisclosure"})
        disclosures.insert(QLatin1String(key), true);
    NSUserDefaults::standardUserDefaults()->registerDefaults(disclosures);
    NSUserDefaults::standardUserDefaults()->synchronize();
}

void ApplicationDelegate::setupDefaultPreferences() {
    NSUserDefaults* defaults = NSUserDefaults::standardUserDefaults();
    defaults->registerDefaults({
        {QStringLiteral("LVTimeZoneType"), static_cast<int>(kTimeZoneSystem)},
        {QStringLiteral("LVTimeZoneCustomGMTOffset"), 0.0},
        {QStringLiteral("LVTimeZoneGMTOffsetTitle"), QStringLiteral("GMT +0")},
        {QStringLiteral("LVLatitude"), ExtraNumberUtilities::numberWithLatitude()},
        {QStringLiteral("LVLongitude"), ExtraNumberUtilities::numberWithLongitude()},
        {QStringLiteral("LVBrightness"), 0.5},
        {SUEnableAutomaticChecksKey, true},
        {SUScheduledCheckIntervalKey, kSevenDays},
    });
    defaults->setBool(false, SUAllowsAutomaticUpdatesKey);
    defaults->setBool(false, SUAutomaticallyUpdateKey);
}

void ApplicationDelegate::awakeFromNib() {
    initCheckForUpdateURL();
    installNewVersion();
}
