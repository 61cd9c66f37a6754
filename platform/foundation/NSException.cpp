// SPDX-License-Identifier: MIT
#include "platform/foundation/NSException.h"

#include <QFileInfo>

NSException::NSException(const QString& name, const QString& reason)
    : name_(name), reason_(reason), utf8_(reason.toUtf8()) {
}

NSInternalInconsistencyException::NSInternalInconsistencyException(const QString& message,
                                                                   const std::source_location& place)
    : NSException(QStringLiteral("NSInternalInconsistencyException"),
                  QStringLiteral("%1, method: %2, file: %3, line: %4")
                      .arg(message, QString::fromUtf8(place.function_name()),
                           QFileInfo(QString::fromUtf8(place.file_name())).completeBaseName(),
                           QString::number(place.line()))) {
}
