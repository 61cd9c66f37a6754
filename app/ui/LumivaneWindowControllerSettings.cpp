// SPDX-License-Identifier: MIT
// The panel's settings and commands.
#include "app/engine/CMoonHelper.h"
#include "app/engine/PreferenceKeys.h"
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "app/ui/PanelCommands.h"
#include "platform/bundle/Bundle.h"
#include "platform/layouts/Slider.h"
#include "platform/locale/Clock.h"
#include "platform/locale/NumberFormatter.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/AskNumber.h"
#include "shared/utilities/classes/ChooseCity.h"
#include "shared/utilities/classes/values/ExtraNumberUtilities.h"

#include <QComboBox>
#include <QLineEdit>

#include <array>
#include <utility>

namespace {

/// The popup's entries in the layout's order; the last one, which opens the dialog, has no type.
constexpr std::array kTimeZoneEntries{kTimeZoneGMT, kTimeZoneSystem, kTimeZoneCustom};

/// The last brightness that the slider reported, for the whole program.
float lastBrightness = 0.0F;

Preferences* defaults() {
    return Preferences::standard();
}

/// "GMT +5.5" for a custom offset, as the preferences keep it.
QString offsetTitle(float hours) {
    return Bundle::main().localizedString(QT_TRANSLATE_NOOP("Lumivane", "GMT ")) +
           (hours >= 0.0F ? QStringLiteral("+") : QString()) +
           NumberFormatter::plainString(hours == 0.0F ? 0.0F : hours, 1); // "-0" is no offset either
}

} // namespace

void LumivaneWindowController::prepareTimeZonePopup() {
    for (std::size_t i = 0; i < kTimeZoneEntries.size(); ++i)
        timeZonePopup_->setItemData(static_cast<int>(i), static_cast<int>(kTimeZoneEntries[i]));
    defaultsChanged(PreferenceKeys::customOffsetTitle.name);
    // No offset that somebody types, however long, makes the panel wider.
    timeZonePopup_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void LumivaneWindowController::defaultsChanged(const QString& key) {
    if (key == PreferenceKeys::customOffsetTitle.name)
        timeZonePopup_->setItemText(timeZonePopup_->findData(static_cast<int>(kTimeZoneCustom)),
                                    PanelModel::customZoneTitle());
}

void LumivaneWindowController::selectTimeZoneEntry(int type) {
    if (const int entry = timeZonePopup_->findData(type); entry >= 0)
        timeZonePopup_->setCurrentIndex(entry);
    defaults()->set(PreferenceKeys::timeZoneType, type);
}

void LumivaneWindowController::timeZoneChanged(QObject* sender) {
    if (sender == timeZonePopup_ && !timeZonePopup_->currentData().isValid()) {
        timeZoneOther(sender);
        return;
    }
    const Clock::Hold oneMoment;
    // The picker keeps what it shows, unless that is now a moment outside the table.
    model_.followZone();
    showModel();
}

void LumivaneWindowController::timeZoneOther(QObject*) {
    const Bundle& bundle = Bundle::main();
    AskNumber* dialog = AskNumber::AskNumberWithMessage(
        bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "GMT Time Zone Offset:")),
        NumberFormatter::localized(
            bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "For Example: -5, +1.5, 12, 0"))),
        NumberFormatter::string(defaults()->value(PreferenceKeys::customOffset)), window_.get(),
        [this](const QString& text, AskNumber* asked) { askTimeZoneDidEnd(text, asked); });
    const int type = CMoonHelper::prefZoneType();
    if (dialog)
        dialog->setRefCon(type);
    else
        selectTimeZoneEntry(type);
    timeZoneChanged(nullptr);
}

void LumivaneWindowController::askTimeZoneDidEnd(const QString& text, AskNumber* dialog) {
    if (!dialog->ok()) {
        selectTimeZoneEntry(dialog->refCon());
        defaults()->synchronize();
        return;
    }
    const float hours = NumberFormatter::leadingNumber(text);
    defaults()->set(PreferenceKeys::customOffset, hours);
    defaults()->set(PreferenceKeys::customOffsetTitle, offsetTitle(hours));
    selectTimeZoneEntry(kTimeZoneCustom);
    timeZoneChanged(nullptr);
}

void LumivaneWindowController::latitudeAndLongitudeFromSystemSettings(QObject*) {
    storePlace(ExtraNumberUtilities::numberWithLatitude(), ExtraNumberUtilities::numberWithLongitude());
}

void LumivaneWindowController::latitudeAndLongitudeFromCity(QObject*) {
    ChooseCity::chooseCity(
        defaults()->value(PreferenceKeys::latitude), defaults()->value(PreferenceKeys::longitude),
        window_.get(),
        [this](const Cities::City& city) { storePlace(city.place.latitude, city.place.longitude); });
}

void LumivaneWindowController::latitudeAndLongitudeFromWeb(QObject*) {
    PanelCommands::openPage("/products/lumivane/globalposition.htm");
}

void LumivaneWindowController::latitudeOrLongitudeChange(QObject*) {
    updateStaticMoonInfo();
}

void LumivaneWindowController::storePlace(double latitude, double longitude) {
    defaults()->set(PreferenceKeys::latitude, static_cast<float>(latitude));
    defaults()->set(PreferenceKeys::longitude, static_cast<float>(longitude));
    showStoredPlace();
    updateStaticMoonInfo();
}

void LumivaneWindowController::showStoredPlace() {
    for (const auto& [field, key] :
         {std::pair{latitude_, PreferenceKeys::latitude}, std::pair{longitude_, PreferenceKeys::longitude}}) {
        // Also in the place of what is being typed.
        field->setText(NumberFormatter::string(defaults()->value(key)));
        field->setCursorPosition(0);
    }
}

void LumivaneWindowController::brightness(QObject*) {
    const auto level = static_cast<float>(brightness_->doubleValue());
    if (level == lastBrightness)
        return;
    lastBrightness = level;
    updateMoonImage();
    updateQuarterButtons();
}

void LumivaneWindowController::windoid(QObject*) {
    if (!isWindoid())
        statusItem_->makeAsWindoid();
    else if (statusItem_->isInTray())
        statusItem_->makeAsHiddenMenu();
}

void LumivaneWindowController::hideButton(QObject*) {
    statusItem_->windowWillClose();
}

void LumivaneWindowController::putDropDownAway() {
    if (!isWindoid())
        statusItem_->makeAsHiddenMenu();
}

void LumivaneWindowController::runAtLogin(QObject* sender) {
    commands_.runAtLogin(sender);
}

void LumivaneWindowController::checkForUpdate(QObject* sender) {
    commands_.checkForUpdate(sender);
}

void LumivaneWindowController::lumivaneHomePage(QObject* sender) {
    commands_.lumivaneHomePage(sender);
}

void LumivaneWindowController::copyMoonToClipboard(QObject* sender) {
    commands_.copyMoonToClipboard(sender);
}

void LumivaneWindowController::showAbout(QObject* sender) {
    commands_.showAbout(sender);
}

void LumivaneWindowController::terminate(QObject* sender) {
    commands_.terminate(sender);
}
