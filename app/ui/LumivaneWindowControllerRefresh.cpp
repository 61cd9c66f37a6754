// SPDX-License-Identifier: MIT
// The panel's pictures and lines for the displayed date.
#include "app/engine/CMoon.h"
#include "app/engine/CMoonHelper.h"
#include "app/engine/CRiseSet.h"
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "app/ui/Shell.h"
#include "platform/layouts/DatePicker.h"
#include "platform/layouts/Slider.h"
#include "platform/locale/Clock.h"
#include "platform/locale/NumberFormatter.h"
#include "platform/locale/TimeZone.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/NSImageUtilities.h"
#include "shared/utilities/classes/setStringValueHilight.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "shared/utilities/classes/values/ExtraMutableStringUtilities.h"
#include "shared/utilities/classes/values/ExtraStringUtilities.h"

#include <QAction>
#include <QLabel>
#include <QPixmap>
#include <QToolButton>

#include <cmath>

namespace {

using ExtraMutableStringUtilities::replaceAll;

constexpr int kPictureSide = 140;
constexpr int kQuarterPictureSide = 16;

/// An information template with its first slot filled.
QString filled(Information information, const QString& value) {
    QString text = CMoonHelper::stringForInformation(information);
    replaceAll(text, QStringLiteral("^1"), value);
    return text;
}

/// An image for a square of `side` points, with all the pixels that `widget`'s screen has there.
QPixmap pixmapForScreenOf(const QWidget* widget, const QImage& image, int side) {
    if (image.isNull())
        return {};
    const qreal ratio = widget->devicePixelRatioF();
    const int pixels = static_cast<int>(std::lround(side * ratio));
    QPixmap pixmap = QPixmap::fromImage(NSImageUtilities::imageOfSize(image, QSize(pixels, pixels)));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

QString LumivaneWindowController::moonImageNameFor(std::uint32_t gmtSeconds) {
    return QStringLiteral("M%1").arg(gMoon.MoonIconIndex(gmtSeconds), 2, 10, QLatin1Char('0'));
}

QImage LumivaneWindowController::moonImageFor(std::uint32_t gmtSeconds) {
    const QImage image = NSImageUtilities::imageNamed(moonImageNameFor(gmtSeconds));
    if (image.isNull())
        return {};
    const Preferences* defaults = Preferences::standard();
    const float brightness = defaults->floatForKey(QStringLiteral("LVBrightness"));
    const QImage tinted = gMoon.IsBlue(gmtSeconds)
                              ? NSImageUtilities::tintToBlueWithBrightness(image, brightness)
                              : NSImageUtilities::tintToGrayWithBrightness(image, brightness);
    const bool southern = defaults->floatForKey(QStringLiteral("LVLatitude")) < 0.0F;
    return southern ? NSImageUtilities::imageByRotatingDegrees(tinted, 180.0F) : tinted;
}

void LumivaneWindowController::updateStaticMoonInfo() {
    const Clock::Hold oneMoment;
    updateMoonImage();
    const std::uint32_t t = datePickerGMTSeconds();

    const QString phase =
        presentIsOutOfRange_
            ? CMoonHelper::stringForInformation(Information::DateOutOfRange)
            : filled(Information::MoonIs, CMoonHelper::stringForMoonName(gMoon.GetDescriptorIndex(t)));
    setStringValueHilight(phaseName_, phase);
    moonImageView_->setAccessibleName(phase);
    const auto illumination = static_cast<float>(gMoon.IlluminationDisplay(t));
    setStringValueHilight(illumination_,
                          filled(Information::Illumination, NumberFormatter::string(illumination, 3)));

    // Ten seconds on, a moment just short of the new moon reads as the new lunation's first.
    QString age = CMoonHelper::stringForInformation(Information::SinceNewMoon);
    CMoonHelper::SubstituteDaysHoursMinutes(age, static_cast<std::int32_t>(gMoon.MoonAgeInSeconds(t + 10)));
    setStringValueHilight(daysSinceNewMoon_, age);

    setStringValueHilight(lunation_, filled(Information::Lunation,
                                            ExtraStringUtilities::stringWithInteger(gMoon.GetLunation(t))));
    setStringValueHilight(
        nextFullMoonName_,
        filled(Information::NextFullMoonIs, CMoonHelper::stringForMoonName(gMoon.GetAlmanacIndex(t))));
    updateQuarterTimes(t);
    updateRiseSetLines(t);
    // A screen reader says this as the slider moves.
    const QDateTime date = datePicker_->dateValue();
    lunationSlider_->setAccessibleDescription(ExtraDateUtilities::dateStringWithFormat(date, 2) + u' ' +
                                              ExtraDateUtilities::timeStringWithSeconds(date, false));
}

void LumivaneWindowController::updateQuarterTimes(std::uint32_t t) {
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(t);
    const std::pair<std::uint32_t, QLabel*> quarters[]{{lunation->newMoon, timeNew_},
                                                       {lunation->firstQuarter, timeFirstQuarter_},
                                                       {lunation->fullMoon, timeFull_},
                                                       {lunation->lastQuarter, timeLastQuarter_}};
    for (const auto& [instant, field] : quarters) {
        const QDateTime date = ExtraDateUtilities::dateWithCarbonSecondsGMT(CMoon::GMTToZone(instant));
        QString text = filled(Information::DateAndTime, ExtraDateUtilities::dateStringWithFormat(date, 0));
        replaceAll(text, QStringLiteral("^2"), ExtraDateUtilities::timeStringWithSeconds(date, false));
        setStringValueHilight(field, text);
    }
}

void LumivaneWindowController::updateRiseSetLines(std::uint32_t t) {
    CRiseSet calculator;
    const std::uint32_t zoneSeconds = CMoon::GMTToZone(t);
    setStringValueHilight(sunRiseSet_,
                          CMoonHelper::FormatDataAsString(&calculator, Information::Sun, zoneSeconds));
    setStringValueHilight(nauticalTwilight_, CMoonHelper::FormatDataAsString(
                                                 &calculator, Information::NauticalTwilight, zoneSeconds));
    setStringValueHilight(moonRiseSet_,
                          CMoonHelper::FormatDataAsString(&calculator, Information::Moon, zoneSeconds));
}

void LumivaneWindowController::updateMoonImage() {
    const QImage image = moonImageFor(datePickerGMTSeconds());
    moonImageView_->setFixedHeight(image.isNull() ? 0 : kPictureSide);
    moonImageView_->setPixmap(pixmapForScreenOf(moonImageView_, image, kPictureSide));
    if (statusItem_)
        statusItem_->setImage(image);
}

void LumivaneWindowController::updateQuarterButtons() {
    const auto level = static_cast<float>(brightness_->doubleValue());
    const std::pair<QToolButton*, const char*> buttons[]{
        {showNew_, "M00"}, {showQ1_, "M09"}, {showFull_, "M15"}, {showQ3_, "M19"}};
    for (const auto& [button, name] : buttons) {
        const QImage picture = NSImageUtilities::imageNamed(QLatin1String(name));
        const QImage tinted =
            picture.isNull() ? picture : NSImageUtilities::tintToGrayWithBrightness(picture, level);
        button->setIconSize(QSize(kQuarterPictureSide, kQuarterPictureSide));
        button->setIcon(QIcon(pixmapForScreenOf(button, tinted, kQuarterPictureSide)));
        button->setText(tinted.isNull() ? button->accessibleName() : QString());
    }
}

bool LumivaneWindowController::validateMenuItem(QAction* item) {
    const QString action = item->property("action").toString();
    if (action == u"runAtLogin") {
        item->setChecked(shell_.alreadySetToStartup(std::nullopt));
    } else if (action == u"latitudeAndLongitudeFromSystemSettings") {
        item->setText(QStringLiteral("%1 (%2)").arg(originalSystemTimeZoneMenuTitle_,
                                                    TimeZone::name(TimeZone::systemTimeZone())));
    }
    return true;
}
