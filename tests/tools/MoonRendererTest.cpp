// SPDX-License-Identifier: MIT
#include "tools/MoonRenderer.h"

#include "app/engine/CMoon.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr int kSize = 128;
constexpr int kMaria = 77; // the map's greys
constexpr int kHighlands = 160;

QImage evenMap(int grey) {
    QImage map(180, 180, QImage::Format_Grayscale8);
    map.fill(QColor(grey, grey, grey));
    return map;
}

/// The grey so far to the right and up from the centre, in radii.
int greyAt(const QImage& image, double right, double up) {
    const double half = image.width() / 2.0;
    return qRed(image.pixel(static_cast<int>(half + right * half), static_cast<int>(half - up * half)));
}

} // namespace

TEST(MoonRenderer, TheLitPartFollowsThePhaseOfThePicturesOwnInterval) {
    const MoonRenderer renderer(evenMap(kHighlands), kSize);
    const int dusk = (greyAt(renderer.picture(0), 0, 0) + greyAt(renderer.picture(50), 0, 0)) / 2;
    EXPECT_EQ(phaseOfPicture(0), 0);
    for (int index = 0; index <= 28; ++index) {
        SCOPED_TRACE(index);
        const double phase = phaseOfPicture(index);
        EXPECT_EQ(CMoon::IconIndexForPercentage(phase), std::max(index, 1));
        const QImage image = renderer.picture(phase);
        int lit = 0; // of the equator, up to the limb
        for (int x = 2; x < kSize - 2; ++x)
            lit += qRed(image.pixel(x, kSize / 2)) > dusk;
        EXPECT_NEAR(lit, (kSize - 4) * (1 - std::cos(phase / 50 * std::numbers::pi)) / 2, 5);
        EXPECT_TRUE(lit < 6 || lit > kSize - 10 || (greyAt(image, 0.95, 0) > dusk) == (phase < 50));
    }
}

TEST(MoonRenderer, NorthIsUpAndEastIsRight) {
    QImage map = evenMap(kMaria);
    for (int latitude = 26; latitude < 34; ++latitude)
        for (int longitude = 46; longitude < 54; ++longitude)
            map.setPixel(90 + longitude, 89 - latitude, qRgb(255, 255, 255));
    const QImage full = MoonRenderer(map, kSize).picture(50);
    const double degree = std::numbers::pi / 180;
    const double right = std::cos(30 * degree) * std::sin(50 * degree);
    const double up = std::sin(30 * degree);
    EXPECT_GT(greyAt(full, right, up), greyAt(full, -right, up) + 50);
    EXPECT_GT(greyAt(full, right, up), greyAt(full, right, -up) + 50);
}
