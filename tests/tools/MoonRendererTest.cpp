// SPDX-License-Identifier: MIT
#include "tools/MoonRenderer.h"

#include "app/engine/CMoon.h"

#include <gtest/gtest.h>

#include <QPointF>

#include <cmath>
#include <numbers>

namespace {

constexpr int kSize = 64;
constexpr int kMaria = 77; // the map's greys
constexpr int kHighlands = 160;

QImage evenMap(int grey) {
    QImage map(180, 180, QImage::Format_Grayscale8);
    map.fill(QColor(grey, grey, grey));
    return map;
}

int greyAtCentre(const QImage& image) {
    return qRed(image.pixel(image.width() / 2, image.height() / 2));
}

/// The pixels brighter than a grey: their share of the disc and their centre, in radii right and up of its.
struct Bright {
    double share = 0;
    QPointF centre;

    Bright(const QImage& image, int grey) {
        int disc = 0;
        int bright = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) < 128)
                    continue;
                ++disc;
                if (qRed(image.pixel(x, y)) <= grey)
                    continue;
                ++bright;
                centre += QPointF(x + 0.5, image.height() - y - 0.5);
            }
        share = double(bright) / disc;
        const double half = image.width() / 2.0;
        if (bright > 0)
            centre = (centre / bright - QPointF(half, half)) / (half - 1);
    }
};

} // namespace

TEST(MoonRenderer, TheLitPartFollowsThePhaseOfThePicturesOwnInterval) {
    const MoonRenderer renderer(evenMap(kHighlands), kSize);
    const int dusk = (greyAtCentre(renderer.picture(0)) + greyAtCentre(renderer.picture(50))) / 2;
    EXPECT_EQ(phaseOfPicture(0), 0);
    for (int index = 0; index <= 28; ++index) {
        SCOPED_TRACE(index);
        const double phase = phaseOfPicture(index);
        EXPECT_EQ(CMoon::IconIndexForPercentage(phase), std::max(index, 1));
        const Bright lit(renderer.picture(phase), dusk);
        EXPECT_NEAR(lit.share, (1 - std::cos(phase / 50 * std::numbers::pi)) / 2, 0.03);
        if (lit.share > 0.01 && lit.share < 0.99) {
            EXPECT_EQ(lit.centre.x() > 0, phase < 50);
        }
    }
}

TEST(MoonRenderer, NorthIsUpAndEastIsRight) {
    QImage map = evenMap(kMaria);
    for (int latitude = 28; latitude < 32; ++latitude)
        for (int longitude = 48; longitude < 52; ++longitude)
            map.setPixel(90 + longitude, 89 - latitude, qRgb(255, 255, 255));
    const QImage full = MoonRenderer(map, 256).picture(50);
    const Bright spot(full, greyAtCentre(full) + 50);
    const double degree = std::numbers::pi / 180;
    EXPECT_NEAR(spot.centre.x(), std::cos(30 * degree) * std::sin(50 * degree), 0.01);
    EXPECT_NEAR(spot.centre.y(), std::sin(30 * degree), 0.01);
}

TEST(MoonRenderer, TheDiscIsOpaqueGreyByNightAndClearAround) {
    const QImage image = MoonRenderer(evenMap(kHighlands), kSize).picture(0);
    double cover = 0;
    for (int i = 0; i < kSize * kSize; ++i) {
        const QRgb pixel = image.pixel(i % kSize, i / kSize);
        EXPECT_TRUE(qIsGray(pixel));
        cover += qAlpha(pixel) / 255.0;
    }
    EXPECT_NEAR(std::sqrt(cover / std::numbers::pi), kSize / 2.0 - 1, 0.05);
    // Seen on a black panel, on a dark one by its limb, and no brighter than dark ground by day.
    EXPECT_GT(greyAtCentre(image), 20);
    EXPECT_GT(qRed(image.pixel(1, kSize / 2)), 80);
    EXPECT_GT(greyAtCentre(MoonRenderer(evenMap(kMaria), kSize).picture(50)), 2 * greyAtCentre(image));
}
