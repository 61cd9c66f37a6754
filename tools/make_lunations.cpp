// SPDX-License-Identifier: MIT
// Writes the table of lunations with the phase-time engine: make_lunations <Lunations.plist>
#include "app/engine/CMoon.h"
#include "platform/bundle/PropertyList.h"

#include <QVariant>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_lunations <Lunations.plist>\n");
        return 2;
    }
    const auto instant = [](int lunation, int phase) {
        return QVariant::fromValue<qulonglong>(CMoon::GMTTimeOfPhase(lunation, phase));
    };
    QVariantList table;
    for (int i = 0; i < kLunationCount; ++i) {
        const qulonglong length = instant(i + 1, 0).toULongLong() - instant(i, 0).toULongLong();
        table.append(
            QVariant(QVariantList{instant(i, 0), instant(i, 1), instant(i, 2), instant(i, 3), length}));
    }
    QString error;
    if (!PropertyList::write(table, QString::fromLocal8Bit(argv[1]), &error)) {
        std::fprintf(stderr, "make_lunations: %s: %s\n", argv[1], qPrintable(error));
        return 1;
    }
    return 0;
}
