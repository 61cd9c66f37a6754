// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/NSImageUtilities.h"

#include "platform/bundle/Bundle.h"
#include "platform/files/RegularFile.h"
#include "platform/log/Log.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace {

constexpr int kLargestSide = 4096;
constexpr qint64 kLargestFile = 16 << 20;

QImage clearImage(const QSize& size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// Tells of a picture that can't be had, once a run: it is asked for again at each tick of the clock.
void logOnce(const QString& name, const QString& reason) {
    static QSet<QString> told;
    if (!told.contains(name)) {
        told.insert(name);
        logLine(reason);
    }
}

int between(int from, int to, double fraction) {
    return static_cast<int>(std::lround(from + (to - from) * fraction));
}

} // namespace

QImage NSImageUtilities::imageInFile(const QString& path, QString* error) {
    auto bytes = RegularFile::read(path, kLargestFile, error);
    if (!bytes)
        return {};
    QBuffer file(&*bytes);
    // Else the reader loads plugins to ask them whether the picture is theirs.
    QImageReader reader(&file, "png");
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    const bool isFit = size.isValid() && size.width() <= kLargestSide && size.height() <= kLargestSide;
    const QImage image = isFit ? reader.read() : QImage();
    if (image.isNull())
        *error = isFit ? reader.errorString() : QStringLiteral("it is no picture of a usable size");
    return image;
}

QImage NSImageUtilities::imageNamed(const QString& name) {
    QString error;
    const QImage image =
        imageInFile(Bundle::main().resourcePath() + u'/' + name + QStringLiteral(".png"), &error);
    if (image.isNull())
        logOnce(name, QStringLiteral("The picture %1 can't be read: %2.").arg(name, error));
    return image;
}

QImage NSImageUtilities::imageOfSize(const QImage& image, const QSize& size) {
    QImage result = clearImage(size);
    if (image.isNull() || size.isEmpty())
        return result;
    if (image.size() == size)
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const double factor = static_cast<double>(size.width()) / image.width();
    const int height = std::max(1, static_cast<int>(std::lround(image.height() * factor)));
    // Averages over the pixels that fall together, which a painter's interpolation does not.
    const QImage scaled = image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                              .scaled(size.width(), height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, size.height() - height, scaled);
    return result;
}

QImage NSImageUtilities::tintTo(const QImage& image, const QColor& colour, float brightness) {
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    if (result.isNull()) {
        logLine(QStringLiteral("Couldn't get TIFFRepresentation from image."));
        return image;
    }
    const double middle =
        std::isnan(brightness) ? 0.5 : std::clamp(static_cast<double>(brightness), 0.0, 1.0);
    std::array<QRgb, 256> mapped{};
    for (int level = 0; level < 256; ++level) {
        const double grey = level / 255.0;
        QRgb& to = mapped[static_cast<std::size_t>(level)];
        if (grey < middle) {
            const double part = grey / middle;
            to = qRgb(between(0, colour.red(), part), between(0, colour.green(), part),
                      between(0, colour.blue(), part));
        } else {
            const double part = middle < 1.0 ? (grey - middle) / (1.0 - middle) : 0.0;
            to = qRgb(between(colour.red(), 255, part), between(colour.green(), 255, part),
                      between(colour.blue(), 255, part));
        }
    }
    mapped.front() = qRgb(0, 0, 0);
    mapped.back() = qRgb(255, 255, 255);
    for (int y = 0; y < result.height(); ++y) {
        const std::span line(reinterpret_cast<QRgb*>(result.scanLine(y)),
                             static_cast<std::size_t>(result.width()));
        for (QRgb& pixel : line)
            pixel = (mapped[static_cast<std::size_t>(qGray(pixel))] & 0x00FFFFFFU) | (pixel & 0xFF000000U);
    }
    return result;
}

QImage NSImageUtilities::tintToGrayWithBrightness(const QImage& image, float brightness) {
    return tintTo(image, QColor(128, 128, 128), brightness);
}

QImage NSImageUtilities::tintToBlueWithBrightness(const QImage& image, float brightness) {
    return tintTo(image, QColor(0, 0, 255), brightness);
}

QImage NSImageUtilities::imageByRotatingDegrees(const QImage& image, float degrees) {
    QImage result = clearImage(image.size().transposed());
    if (image.isNull())
        return result;
    QPainter painter(&result);
    // Quarter turns move whole pixels; interpolation would take a little of their light.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, std::fmod(degrees, 90.0F) != 0.0F);
    painter.translate(image.height() / 2.0, image.width() / 2.0);
    painter.rotate(-static_cast<double>(degrees)); // Qt's y axis points down
    painter.translate(-image.width() / 2.0, -image.height() / 2.0);
    painter.drawImage(0, 0, image);
    return result;
}
