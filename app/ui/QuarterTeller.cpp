// SPDX-License-Identifier: MIT
#include "app/ui/QuarterTeller.h"

#include "app/engine/PreferenceKeys.h"
#include "app/ui/LumivaneWindowController.h"
#include "platform/bundle/Bundle.h"
#include "platform/layouts/Mnemonics.h"
#include "platform/locale/Clock.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/NSImageUtilities.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"

QuarterTeller::QuarterTeller(QObject* parent) : QObject(parent) {
    connect(&notifications_, &Notifications::activated, this, &QuarterTeller::activated);
    connect(Preferences::standard(), &Preferences::valueChanged, this, [](const QString& key) {
        // What passed before it was switched on is not told.
        if (key == PreferenceKeys::tellsQuarters.name)
            takeDue();
    });
}

std::optional<Quarters::Quarter> QuarterTeller::takeDue() {
    Preferences* const preferences = Preferences::standard();
    int told = preferences->value(PreferenceKeys::toldQuarter);
    const auto due =
        Quarters::takeDue(Clock::now().toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant, told);
    preferences->set(PreferenceKeys::toldQuarter, told);
    return due;
}

void QuarterTeller::tell() {
    if (!Preferences::standard()->value(PreferenceKeys::tellsQuarters))
        return;
    const std::optional<Quarters::Quarter> quarter = takeDue();
    if (!quarter)
        return;
    constexpr int kPictureSide = 128;
    const QImage picture = LumivaneWindowController::moonImageFor(quarter->instant);
    notifications_.send(Quarters::name(quarter->phase), Quarters::details(*quarter),
                        picture.isNull()
                            ? picture
                            : NSImageUtilities::imageOfSize(picture, QSize(kPictureSide, kPictureSide)),
                        withoutMnemonic(Bundle::main().localizedString("&Show Lumivane")));
}
