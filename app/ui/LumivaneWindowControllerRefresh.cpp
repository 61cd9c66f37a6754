// SPDX-License-Identifier: MIT
// The panel's pictures and lines for the displayed date.
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "app/ui/PanelCommands.h"
#include "platform/layouts/Slider.h"
#include "platform/locale/Clock.h"
#include "platform/locale/TimeZone.h"
#include "shared/utilities/classes/NSImageUtilities.h"
#include "shared/utilities/classes/setStringValueHilight.h"

#include <QAction>
#include <QLabel>
#include <QPixmap>
#include <QToolButton>

#include <cmath>
#include <utility>

namespace {

constexpr int kPictureSide = 140;
constexpr int kQuarterPictureSide = 16;

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
    return PanelModel::pictureAt(gmtSeconds).name;
}

QImage LumivaneWindowController::moonImageFor(std::uint32_t gmtSeconds) {
    const PanelModel::Picture picture = PanelModel::pictureAt(gmtSeconds);
    const QImage image = NSImageUtilities::imageNamed(picture.name);
    if (image.isNull())
        return {};
    const QImage tinted = picture.isBlue
                              ? NSImageUtilities::tintToBlueWithBrightness(image, picture.brightness)
                              : NSImageUtilities::tintToGrayWithBrightness(image, picture.brightness);
    return picture.isTurned ? NSImageUtilities::imageByRotatingDegrees(tinted, 180.0F) : tinted;
}

void LumivaneWindowController::updateStaticMoonInfo() {
    const Clock::Hold oneMoment;
    updateMoonImage();
    const PanelModel::Lines lines = model_.lines();
    setStringValueHilight(phaseName_, lines.phase);
    moonImageView_->setAccessibleName(lines.phase);
    setStringValueHilight(illumination_, lines.illumination);
    setStringValueHilight(daysSinceNewMoon_, lines.age);
    setStringValueHilight(lunation_, lines.lunation);
    setStringValueHilight(nextFullMoonName_, lines.nextFullMoon);
    const std::pair<QLabel*, QToolButton*> quarters[]{{timeNew_, showNew_},
                                                      {timeFirstQuarter_, showQ1_},
                                                      {timeFull_, showFull_},
                                                      {timeLastQuarter_, showQ3_}};
    for (std::size_t i = 0; i < std::size(quarters); ++i) {
        const auto& [time, button] = quarters[i];
        const QString& distance = lines.quarterDistances[i];
        setStringValueHilight(time, lines.quarters[i]);
        time->setToolTip(distance);
        time->setAccessibleDescription(distance);
        button->setToolTip(button->accessibleName() + u'\n' + distance);
        button->setAccessibleDescription(distance);
    }
    setStringValueHilight(sunRiseSet_, lines.sun);
    setStringValueHilight(nauticalTwilight_, lines.nauticalTwilight);
    setStringValueHilight(moonRiseSet_, lines.moon);
    // A screen reader says this as the slider moves.
    lunationSlider_->setAccessibleDescription(model_.spokenDate());
}

void LumivaneWindowController::updateMoonImage() {
    // Making it takes longer than all the rest of a refresh, and most moves of the slider keep it.
    const std::pair shown(PanelModel::pictureAt(datePickerGMTSeconds()), moonImageView_->devicePixelRatioF());
    if (std::exchange(shownPicture_, shown) == shown)
        return;
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
    if (item != placeFromSystemSettings_)
        return commands_.validateMenuItem(item);
    item->setText(QStringLiteral("%1 (%2)").arg(originalSystemTimeZoneMenuTitle_,
                                                TimeZone::name(TimeZone::systemTimeZone())));
    return true;
}
