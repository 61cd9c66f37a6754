// SPDX-License-Identifier: MIT
// Draws the pictures of the Moon's phases, M00.png to M28.png, and the program's icons in the layout of an
// icon theme: draw_moons <albedo map> <folder of the pictures> <folder of the icon theme> <name of the icon>
#include "app/engine/CMoon.h"
#include "tools/MoonRenderer.h"

#include <QDir>
#include <QImageReader>
#include <QImageWriter>

#include <cstdio>

namespace {

constexpr double kIconPhase = 19.0; // a broad crescent: a Moon at a glance, in any size

bool write(const QImage& picture, const QString& path) {
    QImageWriter writer(path, "png");
    if (writer.write(picture))
        return true;
    std::fprintf(stderr, "draw_moons: %s: %s\n", qPrintable(path), qPrintable(writer.errorString()));
    return false;
}

bool drawPictures(const QImage& albedo, const QDir& folder) {
    const MoonRenderer renderer(albedo);
    for (int index = 0; index <= static_cast<int>(kIconBounds.size()); ++index) {
        const QImage picture = renderer.picture(phaseOfPicture(index));
        if (!write(picture, folder.filePath(QString::asprintf("M%02d.png", index))))
            return false;
    }
    return true;
}

bool drawIcons(const QImage& albedo, const QDir& theme, const QString& name) {
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QString folder = theme.filePath(QStringLiteral("%1x%1/apps").arg(side));
        if (!QDir().mkpath(folder) || !write(MoonRenderer(albedo, side).picture(kIconPhase),
                                             folder + QLatin1Char('/') + name + QStringLiteral(".png")))
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fprintf(stderr, "usage: draw_moons <albedo map> <pictures> <icon theme> <icon name>\n");
        return 2;
    }
    QImageReader reader(QString::fromLocal8Bit(argv[1]));
    const QImage albedo = reader.read();
    if (albedo.isNull()) {
        std::fprintf(stderr, "draw_moons: %s: %s\n", argv[1], qPrintable(reader.errorString()));
        return 1;
    }
    const bool drawn =
        drawPictures(albedo, QDir(QString::fromLocal8Bit(argv[2]))) &&
        drawIcons(albedo, QDir(QString::fromLocal8Bit(argv[3])), QString::fromLocal8Bit(argv[4]));
    return drawn ? 0 : 1;
}
