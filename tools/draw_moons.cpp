// SPDX-License-Identifier: MIT
// Draws the pictures of the Moon's phases, M00.png to M28.png: draw_moons <albedo map> <output folder>
#include "app/engine/CMoon.h"
#include "tools/MoonRenderer.h"

#include <QDir>
#include <QImageReader>
#include <QImageWriter>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: draw_moons <albedo map> <output folder>\n");
        return 2;
    }
    QImageReader reader(QString::fromLocal8Bit(argv[1]));
    const QImage albedo = reader.read();
    if (albedo.isNull()) {
        std::fprintf(stderr, "draw_moons: %s: %s\n", argv[1], qPrintable(reader.errorString()));
        return 1;
    }
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    const MoonRenderer renderer(albedo);
    for (int index = 0; index <= static_cast<int>(kIconBounds.size()); ++index) {
        const QString path = folder.filePath(QString::asprintf("M%02d.png", index));
        QImageWriter writer(path, "png");
        if (!writer.write(renderer.picture(phaseOfPicture(index)))) {
            std::fprintf(stderr, "draw_moons: %s: %s\n", qPrintable(path), qPrintable(writer.errorString()));
            return 1;
        }
    }
    return 0;
}
