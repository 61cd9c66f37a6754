// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <cstdint>
#include <vector>

/// The phase, in percent of the phase fraction, that the picture of an icon index shows: the middle of the
/// interval that the index stands for, and the new moon itself (0) for index 0. `index` is 0 to 28.
double phaseOfPicture(int index);

/// Draws the Moon as it looks from the Earth's northern hemisphere: north up, the waxing Moon lit on the
/// right.
class MoonRenderer {
public:
    /// `albedo` maps the near side's brightness: equirectangular, longitude -90 (left) to +90 degrees
    /// (right), latitude +90 (top) to -90. Pictures are `size` pixels wide and high. A null map leaves the
    /// Moon black.
    explicit MoonRenderer(const QImage& albedo, int size = 256);

    /// The Moon at a phase in percent: 0 new, 25 first quarter, 50 full, 75 last quarter, 100 new again.
    /// Grey, with straight alpha: clear outside the disc, opaque inside it, by day and by night.
    QImage picture(double phasePercent) const;

private:
    struct Pixel {
        std::uint32_t firstSample;
        std::uint16_t samples;
    };
    struct Sample {
        float x, z;       ///< the surface's normal, to the right and towards the Earth
        float day, night; ///< grey in full sunlight and in earthshine
    };

    int size_;
    std::vector<Pixel> pixels_; ///< row by row
    std::vector<Sample> samples_;
};
