// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>

/// Operations on pictures; each gives a new image and leaves its argument as it was. An empty image (a
/// resource that is missing) stays empty through all of them but `imageOfSize` and `imageByRotatingDegrees`,
/// which give a clear one.
namespace NSImageUtilities {

/// The application's picture of that name ("M07"); an empty image, with a log line, when it is missing or
/// damaged.
QImage imageNamed(const QString& name);

/// The PNG picture in a file; an empty one, with the reason in `error`, when the file can't be read or holds
/// none, or one of more than 4096 pixels a side.
QImage imageInFile(const QString& path, QString* error);

/// The image drawn at another size with one factor for both axes, the ratio of the widths, anchored at the
/// lower left.
QImage imageOfSize(const QImage& image, const QSize& size);

/// Colourises by grey level, keeping alpha: black and white stay, the level `brightness` (held to 0...1)
/// becomes `colour`, and levels between are interpolated.
QImage tintTo(const QImage& image, const QColor& colour, float brightness);
QImage tintToGrayWithBrightness(const QImage& image, float brightness);
QImage tintToBlueWithBrightness(const QImage& image, float brightness);

/// Turns the image about its centre, counter-clockwise for positive degrees; width and height change places.
QImage imageByRotatingDegrees(const QImage& image, float degrees);

} // namespace NSImageUtilities
