// SPDX-License-Identifier: MIT
#include "platform/files/RegularFile.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>

std::optional<QByteArray> RegularFile::read(const QString& path, qint64 largest, QString* error) {
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status {};
    QFile file; // closes it
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) ||
        fstat(descriptor, &status) != 0) {
        *error = QString::fromLocal8Bit(std::strerror(errno));
    } else if (!S_ISREG(status.st_mode)) {
        *error = QStringLiteral("it is no regular file");
    } else if (status.st_size > largest) {
        *error = QStringLiteral("it is too large");
    } else {
        const QByteArray bytes = file.read(status.st_size);
        if (file.error() == QFileDevice::NoError)
            return bytes;
        *error = file.errorString();
    }
    return std::nullopt;
}

bool RegularFile::isOtherThing(const QString& path) {
    struct stat status {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 && !S_ISREG(status.st_mode);
}
