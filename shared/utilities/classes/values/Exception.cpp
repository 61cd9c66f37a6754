// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/Exception.h"

#include <QFileInfo>

Exception::Exception(const QString& name, const QString& reason)
    : name_(name), reason_(reason), utf8_(reason.toUtf8()) {
}

InternalInconsistencyException::InternalInconsistencyException(const QString& message, const char* method,
                                                               const char* file, int line)
    : Exception(QStringLiteral("InternalInconsistencyException"),
                QStringLiteral("%1, method: %2, file: %3, line: %4")
                    .arg(message, QString::fromUtf8(method),
                         QFileInfo(QString::fromUtf8(file)).completeBaseName(), QString::number(line))) {
}
