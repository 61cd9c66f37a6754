// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/NSImageUtilities.h"

#include "tests/TestMain.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// Grey levels 0 to 255 from left to right.
QImage greys() {
    QImage image(256, 1, QImage::Format_ARGB32);
    for (int x = 0; x < 256; ++x)
        image.setPixel(x, 0, qRgba(x, x, x, 255));
    return image;
}

std::vector<int> components(const QImage& image, int (*component)(QRgb), std::initializer_list<int> places) {
    std::vector<int> result;
    for (const int x : places)
        result.push_back(component(image.pixel(x, 0)));
    return result;
}

} // namespace

TEST(NSImageUtilitiesTest, TintingMapsTheMiddleToTheColour) {
    using Levels = std::vector<int>;
    const auto grey = [](float brightness) {
        return NSImageUtilities::tintToGrayWithBrightness(greys(), brightness);
    };
    const auto blue = [](float brightness) {
        return NSImageUtilities::tintToBlueWithBrightness(greys(), brightness);
    };
    const auto places = {0, 1, 64, 128, 192, 254, 255};
    EXPECT_EQ(components(grey(0.5F), qRed, places), (Levels{0, 1, 64, 128, 192, 254, 255}));
    EXPECT_EQ(components(blue(0.5F), qRed, places), (Levels{0, 0, 0, 1, 129, 253, 255}));
    EXPECT_EQ(components(blue(0.5F), qBlue, places), (Levels{0, 2, 128, 255, 255, 255, 255}));
    // At the ends black and white stay what they are, and all else lies on one side of the colour.
    EXPECT_EQ(components(grey(0.0F), qGreen, places), (Levels{0, 128, 160, 192, 224, 255, 255}));
    EXPECT_EQ(components(grey(1.0F), qGreen, places), (Levels{0, 1, 32, 64, 96, 127, 255}));
    EXPECT_EQ(components(blue(0.25F), qGreen, places), (Levels{0, 0, 0, 86, 171, 254, 255}));
    EXPECT_EQ(grey(-3.0F), grey(0.0F));
    EXPECT_EQ(grey(17.0F), grey(1.0F));
    EXPECT_EQ(grey(NAN), grey(0.5F));
}

TEST(NSImageUtilitiesTest, TintingKeepsAlpha) {
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(200, 200, 200, 0));
    image.setPixel(1, 0, qRgba(200, 200, 200, 77));
    image.setPixel(2, 0, qRgba(10, 250, 30, 255));
    const QImage tinted = NSImageUtilities::tintToBlueWithBrightness(image, 0.4F);
    EXPECT_EQ(components(tinted, qAlpha, {0, 1, 2}), (std::vector<int>{0, 77, 255}));
    EXPECT_EQ(image.pixel(2, 0), qRgba(10, 250, 30, 255)) << "the original stays";
    const CaughtLog log;
    EXPECT_TRUE(NSImageUtilities::tintToGrayWithBrightness({}, 0.5F).isNull());
    EXPECT_EQ(log.lines(), QStringList{QStringLiteral("Couldn't get TIFFRepresentation from image.")});
}

TEST(NSImageUtilitiesTest, TurningIsExactByHalfAndCounterClockwiseByAQuarter) {
    for (const QSize& size : {QSize(8, 8), QSize(7, 7)}) {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        for (int i = 0; i < size.width() * size.height(); ++i)
            image.setPixel(i % size.width(), i / size.width(), qRgba(i * 3, 255 - i, i, 255));
        EXPECT_EQ(NSImageUtilities::imageByRotatingDegrees(image, 180.0F), image.mirrored(true, true));
    }
    QImage wide(4, 2, QImage::Format_ARGB32_Premultiplied);
    wide.fill(Qt::black);
    wide.setPixelColor(3, 0, Qt::red);
    const QImage turned = NSImageUtilities::imageByRotatingDegrees(wide, 90.0F);
    EXPECT_EQ(turned.size(), QSize(2, 4));
    EXPECT_EQ(turned.pixelColor(0, 0), QColor(Qt::red)) << "its upper right corner is now the upper left one";
    EXPECT_TRUE(NSImageUtilities::imageByRotatingDegrees({}, 180.0F).isNull());
}

TEST(NSImageUtilitiesTest, ScalingTakesTheWidthsRatioAndStandsOnTheLowerLeft) {
    QImage image(20, 10, QImage::Format_ARGB32);
    image.fill(Qt::red);
    const QImage square = NSImageUtilities::imageOfSize(image, QSize(40, 40));
    EXPECT_EQ(square.size(), QSize(40, 40));
    EXPECT_EQ(square.pixelColor(20, 19).alpha(), 0);
    for (const QPoint& inside : {QPoint(0, 20), QPoint(39, 20), QPoint(0, 39), QPoint(39, 39)})
        EXPECT_EQ(square.pixelColor(inside), QColor(Qt::red)) << inside.x() << ' ' << inside.y();
    // A tall one stands on its foot, and its head is cut off.
    QImage tall(10, 20, QImage::Format_ARGB32);
    tall.fill(Qt::red);
    for (int x = 0; x < 10; ++x)
        tall.setPixelColor(x, 19, Qt::blue);
    const QImage cut = NSImageUtilities::imageOfSize(tall, QSize(10, 10));
    EXPECT_EQ(cut.pixelColor(5, 9), QColor(Qt::blue));
    EXPECT_EQ(cut.pixelColor(5, 0), QColor(Qt::red));
    EXPECT_EQ(NSImageUtilities::imageOfSize(image, QSize(0, 5)).width(), 0);
}

TEST(NSImageUtilitiesTest, AMissingOrDamagedPictureIsEmptyAndLoggedOnce) {
    EXPECT_FALSE(NSImageUtilities::imageNamed(QStringLiteral("M21")).isNull());
    const QTemporaryDir folder;
    const WithEnvironment resources("LUMIVANE_RESOURCES", folder.path().toLocal8Bit());
    QFile damaged(folder.filePath(QStringLiteral("M21.png")));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("\x89PNG\r\n\x1a\n and no more");
    damaged.close();
    const CaughtLog log;
    for (const char* name : {"M21", "M22", "M21", "M22"}) {
        EXPECT_TRUE(NSImageUtilities::imageNamed(QLatin1String(name)).isNull());
        EXPECT_EQ(log.lines().filter(QStringLiteral("The picture ") + QLatin1String(name)).size(), 1) << name;
    }
}
