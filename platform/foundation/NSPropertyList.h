// SPDX-License-Identifier: MIT
#pragma once

#include <QVariant>

/// Stands for Foundation's property lists. Backed by libplist. Arrays become QVariantList, dictionaries
/// QVariantMap, integers qulonglong, reals double, texts QString, data QByteArray.
namespace NSPropertyList {

/// The property list in a file (XML or binary); an invalid variant, and the reason in `error`, when the file
/// can't be read, is larger than 16 MiB, or is no property list.
QVariant read(const QString& path, QString* error);

/// Writes `root` as a binary property list, replacing the file at once or not at all; false with the reason
/// in `error` when that fails.
bool write(const QVariant& root, const QString& path, QString* error);

} // namespace NSPropertyList
