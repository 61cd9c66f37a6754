// SPDX-License-Identifier: MIT
#include "tools/MoonRenderer.h"

#include "app/engine/CMoon.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr int kSamplesPerSide = 4;
constexpr double kMargin = 1; // pixels around the disc

double degrees(double angle) {
    return angle * 180 / std::numbers::pi;
}

double radians(double angle) {
    return angle * std::numbers::pi / 180;
}

double smoothStep(double from, double to, double x) {
    const double t = std::clamp((x - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

/// A grey map read between its pixels; x and y run from 0 to 1 over it.
class Map {
public:
    explicit Map(const QImage& image) : image_(image.convertToFormat(QImage::Format_Grayscale8)) {}

    double at(double x, double y) const {
        if (image_.isNull())
            return 0;
        const double column = std::clamp(x * image_.width() - 0.5, 0.0, image_.width() - 1.0);
        const double row = std::clamp(y * image_.height() - 0.5, 0.0, image_.height() - 1.0);
        const int left = static_cast<int>(column);
        const int top = static_cast<int>(row);
        const double upper = std::lerp(pixel(left, top), pixel(left + 1, top), column - left);
        const double lower = std::lerp(pixel(left, top + 1), pixel(left + 1, top + 1), column - left);
        return std::lerp(upper, lower, row - top) / 255;
    }

private:
    double pixel(int column, int row) const {
        return image_.constScanLine(std::min(row, image_.height() - 1))[std::min(column, image_.width() - 1)];
    }

    QImage image_;
};

/// The grey of sunlit ground: maria around 0.45, highlands around 0.85, and a shoulder that keeps the
/// brightest craters from running into white.
double dayGrey(double albedo) {
    const double grey = 0.36 + 1.22 * (albedo - 0.24);
    return grey < 0.8 ? std::max(grey, 0.1) : 1 - 0.2 * std::exp((0.8 - grey) / 0.2);
}

/// The grey of ground in earthshine. The limb is drawn brighter than it is: without it the new moon would be
/// lost on a dark panel, as it would be if it were drawn clear on any.
double nightGrey(double albedo, double fromCentre) {
    return 0.05 + 0.18 * albedo + 0.28 * std::pow(fromCentre, 16);
}

/// The Sun's light on the Moon as it is seen from the Earth.
///
/// The ground follows the lunar-Lambert law: dust that shades itself (Lommel-Seeliger) keeps the full moon's
/// limb as bright as its centre, and its share falls with the phase angle. Sources: A. S. McEwen,
/// "Photometric functions for photoclinometry and other applications", Icarus 92 (1991), and "A precise lunar
/// photometric function", Lunar and Planetary Science XXVII (1996), for the share's polynomial.
class Sunlight {
public:
    explicit Sunlight(double phasePercent) {
        const double elongation = phasePercent / 50 * std::numbers::pi;
        x_ = std::sin(elongation);
        z_ = -std::cos(elongation);
        const double a = degrees(std::acos(z_));
        lommelSeeliger_ = std::clamp(1 + a * (-0.019 + a * (2.42e-4 - a * 1.46e-6)), 0.0, 1.0);
        dusk_ = 0.05 * (z_ > 0 ? 1 : std::abs(x_));
        for (int step = -360; step <= 360; ++step) {
            const double longitude = step * 0.25;
            const double normalX = std::sin(radians(longitude));
            const double normalZ = std::cos(radians(longitude));
            brightest_ = std::max(brightest_, light(height(normalX, normalZ), normalZ));
        }
    }

    /// 0 by night to 1 in the brightest light, for ground whose normal points so far to the right and towards
    /// the Earth. Exposed for the lit part as a photographer would.
    double exposure(double normalX, double normalZ) const {
        const double sun = height(normalX, normalZ);
        if (sun <= -dusk_ || brightest_ <= 0)
            return 0;
        // Rough ground ends softly, and some of it is lit a little beyond the terminator.
        const double softened = (sun + std::hypot(sun, dusk_)) / 2;
        const double part = std::min(light(softened, normalZ) / brightest_, 1.0);
        // The fourth root lifts low light, so that a half moon looks half lit.
        return std::sqrt(std::sqrt(part)) * smoothStep(-dusk_, dusk_, sun);
    }

private:
    double height(double normalX, double normalZ) const { return normalX * x_ + normalZ * z_; }

    /// What the ground sends to the Earth; the cosines of the Sun's and the Earth's zenith distances.
    double light(double sun, double earth) const {
        if (sun <= 0)
            return 0;
        return lommelSeeliger_ * 2 * sun / (sun + earth) + (1 - lommelSeeliger_) * sun;
    }

    double x_, z_;          ///< the Sun's direction, to the right and towards the Earth
    double lommelSeeliger_; ///< its share in the law
    double dusk_;           ///< half the terminator's width, as a cosine; a thin crescent has a thin one
    double brightest_ = 0;  ///< the most light that any ground sends
};

} // namespace

double phaseOfPicture(int index) {
    if (index == 0)
        return 0;
    const double from = index == 1 ? 0 : kIconBounds.at(index - 2);
    return (from + kIconBounds.at(index - 1)) / 2;
}

MoonRenderer::MoonRenderer(const QImage& albedo, int size) : size_(size) {
    const Map map(albedo);
    const double radius = size / 2.0 - kMargin;
    const auto place = [&](int pixel, int sample) {
        return (pixel + (sample + 0.5) / kSamplesPerSide - size / 2.0) / radius;
    };
    for (int i = 0; i < size * size; ++i) {
        const std::size_t first = samples_.size();
        for (int j = 0; j < kSamplesPerSide * kSamplesPerSide; ++j) {
            const double x = place(i % size, j % kSamplesPerSide);
            const double y = -place(i / size, j / kSamplesPerSide);
            const double fromCentre = std::hypot(x, y);
            if (fromCentre > 1)
                continue;
            // Seen from far away: orthographic.
            const double z = std::sqrt(1 - fromCentre * fromCentre);
            const double longitude = std::atan2(x, z);
            const double latitude = std::asin(y);
            const double ground =
                map.at(0.5 + longitude / std::numbers::pi, 0.5 - latitude / std::numbers::pi);
            samples_.push_back({static_cast<float>(x), static_cast<float>(z),
                                static_cast<float>(dayGrey(ground)),
                                static_cast<float>(nightGrey(ground, fromCentre))});
        }
        pixels_.push_back(
            {static_cast<std::uint32_t>(first), static_cast<std::uint16_t>(samples_.size() - first)});
    }
}

QImage MoonRenderer::picture(double phasePercent) const {
    const Sunlight sunlight(phasePercent);
    QImage image(size_, size_, QImage::Format_ARGB32);
    for (int y = 0; y < size_; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size_; ++x) {
            const Pixel& pixel = pixels_[static_cast<std::size_t>(y) * size_ + x];
            double sum = 0;
            for (unsigned i = 0; i < pixel.samples; ++i) {
                const Sample& s = samples_[pixel.firstSample + i];
                sum += std::lerp(s.night, s.day, sunlight.exposure(s.x, s.z));
            }
            const int grey = pixel.samples ? static_cast<int>(std::lround(255 * sum / pixel.samples)) : 0;
            const int alpha = 255 * pixel.samples / (kSamplesPerSide * kSamplesPerSide);
            line[x] = qRgba(grey, grey, grey, alpha);
        }
    }
    return image;
}
