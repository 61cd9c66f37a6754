// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "app/engine/CMoon.h"
#include "app/engine/PreferenceKeys.h"
#include "platform/bundle/Bundle.h"
#include "platform/instance/RunningCopies.h"
#include "platform/log/Log.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/ExtraApplicationUtilities.h"
#include "shared/utilities/classes/values/ExtraNumberUtilities.h"
#include "shared/utilities/classes/values/ExtraStringUtilities.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QTimer>

#include <chrono>

ApplicationDelegate::ApplicationDelegate() {
    setupDefaults();
    gMoon.Init();
    setupDefaultPreferences();
    sparkleUpdater_ = std::make_unique<UpdateChecker>();
}

ApplicationDelegate::~ApplicationDelegate() = default;

void ApplicationDelegate::setupDefaults() {
    Preferences* defaults = Preferences::standard();
    for (const auto& key : PreferenceKeys::disclosures)
        defaults->registerKey(key);
    defaults->synchronize();
}

void ApplicationDelegate::setupDefaultPreferences() {
    using namespace PreferenceKeys;
    Preferences* defaults = Preferences::standard();
    defaults->registerKey(timeZoneType);
    defaults->registerKey(customOffset);
    defaults->registerKey(customOffsetTitle);
    defaults->registerKey(latitude, static_cast<float>(ExtraNumberUtilities::numberWithLatitude()));
    defaults->registerKey(longitude, static_cast<float>(ExtraNumberUtilities::numberWithLongitude()));
    defaults->registerKey(brightness);
    defaults->registerKey(SUEnableAutomaticChecksKey);
    defaults->registerKey(SUScheduledCheckIntervalKey);
    defaults->set(SUAllowsAutomaticUpdatesKey, false);
    defaults->set(SUAutomaticallyUpdateKey, false);
}

void ApplicationDelegate::awakeFromNib() {
    initCheckForUpdateURL();
    installNewVersion();
}

void ApplicationDelegate::announce() {
    RunningCopies::announce(Bundle::main().bundleIdentifier(),
                            {.activate = [this] { Q_EMIT raiseRequested(); },
                             .runAction = [this](const QString& name) { return runAction(name); },
                             .quit = [this] { quit(); }},
                            this);
}

bool ApplicationDelegate::runAction(const QString& name) {
    if (name == u"show")
        Q_EMIT raiseRequested();
    else if (name == u"quit")
        quit();
    else
        logLine(QStringLiteral("The desktop asks for an action that is none: %1.").arg(name));
    return name == u"show" || name == u"quit";
}

void ApplicationDelegate::quit() {
    if (isQuitting_)
        return;
    isQuitting_ = true;
    // Later, so that who asked still gets its answer; and again, since a dialog at the start has an event
    // loop before the application has its own.
    auto* timer = new QTimer(this);
    timer->callOnTimeout([] { QCoreApplication::exit(0); });
    timer->start(std::chrono::milliseconds(10));
}

void ApplicationDelegate::installNewVersion() {
    announce();
    quitOlderCopies();
    const QString bundlePath = Bundle::main().bundlePath();
    if (!ExtraStringUtilities::contains(bundlePath, QStringLiteral("Applications")))
        warnOutsideApplicationsOnce(bundlePath);
    if (!isQuitting_) // a newer copy, which starts at login now, may have ended the warning
        ensureSetToStartup();
}

void ApplicationDelegate::warnOutsideApplicationsOnce(const QString& bundlePath) {
    Preferences* defaults = Preferences::standard();
    if (defaults->value(PreferenceKeys::warnedPath) == bundlePath)
        return;
    ExtraApplicationUtilities::bringToFront();
    const Bundle& bundle = Bundle::main();
    QMessageBox alert(QMessageBox::Warning, QStringLiteral("Lumivane"),
                      bundle.localizedString(
                          QT_TRANSLATE_NOOP("Lumivane", "Lumivane is not inside your Applications folder.")));
    alert.setInformativeText(bundle.localizedString(QT_TRANSLATE_NOOP(
        "Lumivane",
        "We highly recommend you install Lumivane in to your Applications folder.  (This warning will only "
        "be shown once for the current install location.)  Please quit Lumivane before moving it, if you "
        "do so.")));
    alert.addButton(bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "OK")), QMessageBox::AcceptRole);
    defaults->set(PreferenceKeys::warnedPath, bundlePath);
    defaults->synchronize();
    alert.exec();
}
