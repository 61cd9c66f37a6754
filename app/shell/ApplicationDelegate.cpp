// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "app/engine/CMoon.h"
#include "app/engine/CMoonHelper.h"
#include "platform/carbon/AppleEvents.h"
#include "platform/carbon/Processes.h"
#include "platform/foundation/NSBundle.h"
#include "platform/foundation/NSLog.h"
#include "platform/foundation/NSUserDefaults.h"
#include "shared/utilities/classes/ExtraApplicationUtilities.h"
#include "shared/utilities/classes/ExtraNumberUtilities.h"
#include "shared/utilities/classes/ExtraStringUtilities.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace {

ApplicationDelegate* theDelegate = nullptr;

constexpr int kSevenDays = 604800;

/// The name in a desktop entry's action.
QString actionName(const AppleEvent& event) {
    AEDesc name;
    return AEGetParamDesc(event, keyDirectObject, typeUTF8Text, &name) == noErr ? QString::fromUtf8(name.data)
                                                                                : QString();
}

OSStatus quit(AppleEvent* reply) {
    AppleEvent event;
    const OSStatus err = AECreateAppleEvent(kCoreEventClass, kAEQuitApplication, {}, kAutoGenerateReturnID,
                                            kAnyTransactionID, &event);
    return err == noErr ? AEProcessAppleEvent(event, reply) : err;
}

} // namespace

ApplicationDelegate::ApplicationDelegate() {
    theDelegate = this;
    setupDefaults();
    gMoon.Init();
    setupDefaultPreferences();
    sparkleUpdater_ = std::make_unique<SUUpdater>();
}

ApplicationDelegate::~ApplicationDelegate() {
    AEInstallEventHandler(kCoreEventClass, kAEReopenApplication, {});
    AEInstallEventHandler(kCoreEventClass, kAEActivateAction, {});
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
    defaults->registerRange(QStringLiteral("LVLatitude"), {-90.0F, 90.0F});
    defaults->registerRange(QStringLiteral("LVLongitude"), {-180.0F, 180.0F});
    defaults->setBool(false, SUAllowsAutomaticUpdatesKey);
    defaults->setBool(false, SUAutomaticallyUpdateKey);
}

void ApplicationDelegate::awakeFromNib() {
    initCheckForUpdateURL();
    answerDesktop();
    installNewVersion();
}

void ApplicationDelegate::answerDesktop() {
    const auto show = [this](const AppleEvent&, AppleEvent*) {
        Q_EMIT raiseRequested();
        return noErr;
    };
    AEInstallEventHandler(kCoreEventClass, kAEReopenApplication, show);
    AEInstallEventHandler(
        kCoreEventClass, kAEActivateAction, [show](const AppleEvent& event, AppleEvent* reply) {
            const QString action = actionName(event);
            if (action == u"show")
                return show(event, reply);
            if (action == u"quit")
                return quit(reply);
            NSLog(QStringLiteral("The desktop asks for an action that is none: %1.").arg(action));
            return errAEEventNotHandled;
        });
}

void ApplicationDelegate::installNewVersion() {
    announceProcess(NSBundle::mainBundle().bundleIdentifier());
    quitOlderCopies();
    const QString bundlePath = NSBundle::mainBundle().bundlePath();
    if (!ExtraStringUtilities::contains(bundlePath, QStringLiteral("Applications")))
        warnOutsideApplicationsOnce(bundlePath);
    if (!AEIsQuitting()) // a newer copy, which starts at login now, may have ended the warning
        ensureSetToStartup();
}

void ApplicationDelegate::warnOutsideApplicationsOnce(const QString& bundlePath) {
    const QString key = QStringLiteral("LVNotApplicationsFolderWarning");
    NSUserDefaults* defaults = NSUserDefaults::standardUserDefaults();
    if (defaults->stringForKey(key) == bundlePath)
        return;
    ExtraApplicationUtilities::bringToFront();
    const NSBundle& bundle = NSBundle::mainBundle();
    QMessageBox alert(QMessageBox::Warning, QStringLiteral("Lumivane"),
                      bundle.localizedString(
                          QT_TRANSLATE_NOOP("Lumivane", "Lumivane is not inside your Applications folder.")));
    alert.setInformativeText(bundle.localizedString(QT_TRANSLATE_NOOP(
        "Lumivane",
        "We highly recommend you install Lumivane in to your Applications folder.  (This warning will only "
        "be shown once for the current install location.)  Please quit Lumivane before moving it, if you "
        "do so.")));
    alert.addButton(bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "OK")), QMessageBox::AcceptRole);
    defaults->setObject(bundlePath, key);
    defaults->synchronize();
    alert.exec();
}
