// SPDX-License-Identifier: MIT
#include "platform/foundation/NSException.h"

#include <QFileInfo>

NSException::NSException(const QString& name, const QString& reason)
    : name_(name), reason_(reason), utf8_(reason.toUtf8()) {
}

NSInternalInconsistencyException::NSInternalInconsistencyException(const QString& message, const char* method,
                                                                   const char* file, int line)
    : NSException(QStringLiteral("NSInternalInconsistencyException"),
                  QStringLiteral("%1, method: %2, file: %3, line: %4")
                      .arg(message, QString::fromUtf8(method),
                           QFileInfo(QString::fromUtf8(file)).completeBaseName(), QString::number(line))) {
}
