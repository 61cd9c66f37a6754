// SPDX-License-Identifier: MIT
#include "platform/files/ConfigFolder.h"

#include <QDir>
#include <QStandardPaths>

QString configFolder() {
    if (const QString named = qEnvironmentVariable("LUMIVANE_CONFIG_HOME"); !named.isEmpty())
        return QDir::cleanPath(QDir::current().absoluteFilePath(named));
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}
