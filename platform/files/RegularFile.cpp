// SPDX-License-Identifier: MIT
#include "platform/files/RegularFile.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class Descriptor {
public:
    explicit Descriptor(const QString& path)
        : number_(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~Descriptor() {
        if (number_ >= 0)
            close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }

private:
    const int number_;
};

} // namespace

std::optional<QByteArray> RegularFile::read(const QString& path, qint64 largest, QString* error) {
    const Descriptor descriptor(path);
    struct stat status {};
    if (descriptor.number() < 0 || fstat(descriptor.number(), &status) != 0) {
        *error = QString::fromLocal8Bit(std::strerror(errno));
    } else if (!S_ISREG(status.st_mode)) {
        *error = QStringLiteral("it is no regular file");
    } else if (status.st_size > largest) {
        *error = QStringLiteral("it is too large");
    } else {
        QFile file;
        file.open(descriptor.number(), QIODevice::ReadOnly);
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
