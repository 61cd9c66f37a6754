// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Regular files, and nothing that only stands in the place of one: a pipe, a socket, a device or a folder is
/// never waited for.
namespace RegularFile {

/// All that a regular file of at most `largest` bytes holds; nothing, and the reason in `error`, where there
/// is none such or it can't be read. A symbolic link stands for what it leads to.
std::optional<QByteArray> read(const QString& path, qint64 largest, QString* error);

/// Whether there is something at `path` that is no regular file.
bool isOtherThing(const QString& path);

} // namespace RegularFile
