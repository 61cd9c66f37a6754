// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/NSImageUtilities.h"

#include "tests/TestMain.h"

#include <cmath>

namespace {

/// Grey levels 0 to 255 from left to right, and one that is half clear.
QImage greys() {
    QImage image(257, 1, QImage::Format_ARGB32);
    for (int x = 0; x < 256; ++x)
        image.setPixel(x, 0, qRgba(x, x, x, 255));
    image.setPixel(256, 0, qRgba(200, 200, 200, 77));
    return image;
}

QImage red(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    return image;
}

} // namespace

TEST(NSImageUtilitiesTest, TintingMapsTheMiddleToTheColour) {
    using Row = std::tuple<bool, float, int (*)(QRgb), std::array<int, 7>>;
    for (const auto& [isBlue, brightness, component, levels] :
         {Row{false, 0.5F, qRed, {0, 1, 64, 128, 192, 254, 255}},
          Row{true, 0.5F, qRed, {0, 0, 0, 1, 129, 253, 255}},
          Row{true, 0.5F, qBlue, {0, 2, 128, 255, 255, 255, 255}},
          // At the ends black and white stay what they are, and all else lies on one side of the colour.
          Row{false, 0.0F, qGreen, {0, 128, 160, 192, 224, 255, 255}},
          Row{false, 1.0F, qGreen, {0, 1, 32, 64, 96, 127, 255}},
          Row{false, 17.0F, qGreen, {0, 1, 32, 64, 96, 127, 255}},
          Row{false, NAN, qRed, {0, 1, 64, 128, 192, 254, 255}}}) {
        const QImage tinted = isBlue ? NSImageUtilities::tintToBlueWithBrightness(greys(), brightness)
                                     : NSImageUtilities::tintToGrayWithBrightness(greys(), brightness);
        std::array<int, 7> found{};
        std::ranges::transform(std::array{0, 1, 64, 128, 192, 254, 255}, found.begin(),
                               [&](int x) { return component(tinted.pixel(x, 0)); });
        EXPECT_EQ(found, levels) << isBlue << ' ' << brightness;
        EXPECT_EQ(qAlpha(tinted.pixel(256, 0)), 77);
    }
    EXPECT_TRUE(NSImageUtilities::tintToGrayWithBrightness({}, 0.5F).isNull());
}

TEST(NSImageUtilitiesTest, TurningIsExactByHalfAndCounterClockwiseByAQuarter) {
    for (const int side : {7, 8}) {
        QImage image = red(side, side);
        image.setPixelColor(side - 1, 1, Qt::blue);
        EXPECT_EQ(NSImageUtilities::imageByRotatingDegrees(image, 180.0F), image.mirrored(true, true));
    }
    QImage wide = red(7, 2);
    wide.setPixelColor(6, 0, Qt::blue);
    const QImage turned = NSImageUtilities::imageByRotatingDegrees(wide, 90.0F);
    EXPECT_EQ(turned.size(), QSize(2, 7));
    EXPECT_EQ(turned.pixelColor(0, 0), QColor(Qt::blue))
        << "its upper right corner is now the upper left one";
}

TEST(NSImageUtilitiesTest, ScalingTakesTheWidthsRatioAndStandsOnTheLowerLeft) {
    const QImage square = NSImageUtilities::imageOfSize(red(20, 10), QSize(40, 40));
    EXPECT_EQ(square.size(), QSize(40, 40));
    EXPECT_EQ(square.pixelColor(20, 19).alpha(), 0);
    for (const QPoint& inside : {QPoint(0, 20), QPoint(39, 20), QPoint(0, 39), QPoint(39, 39)})
        EXPECT_EQ(square.pixelColor(inside), QColor(Qt::red)) << inside.x() << ' ' << inside.y();
    // A tall one stands on its foot, and its head is cut off.
    QImage tall = red(10, 20);
    for (int x = 0; x < 10; ++x)
        tall.setPixelColor(x, 19, Qt::blue);
    const QImage cut = NSImageUtilities::imageOfSize(tall, QSize(10, 10));
    EXPECT_EQ(cut.pixelColor(5, 9), QColor(Qt::blue));
    EXPECT_EQ(cut.pixelColor(5, 0), QColor(Qt::red));
}

TEST(NSImageUtilitiesTest, AMissingOrDamagedPictureIsEmptyAndLoggedOnce) {
    EXPECT_FALSE(NSImageUtilities::imageNamed(u"M21"_s).isNull());
    const OtherResources resources;
    writeFile(resources.path(u"M21.png"_s), "\x89PNG\r\n\x1a\n and no more");
    const CaughtLog log;
    for (const char* name : {"M21", "M22", "M21", "M22"}) {
        EXPECT_TRUE(NSImageUtilities::imageNamed(QLatin1String(name)).isNull());
        EXPECT_EQ(log.lines().filter(u"The picture "_s + QLatin1String(name)).size(), 1) << name;
    }
}
