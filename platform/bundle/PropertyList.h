// SPDX-License-Identifier: MIT
#pragma once

#include <QVariant>

/// Property lists, read and written by libplist. Arrays become QVariantList, dictionaries QVariantMap,
/// integers qulonglong, texts QString.
namespace PropertyList {

/// The property list that `bytes` are, XML, or binary without dictionaries; an invalid variant, and the
/// reason in `error`, when they are none. What lies deeper than 64 levels, and other types, are invalid
/// variants in it.
QVariant fromBytes(const QByteArray& bytes, QString* error);

/// Lists, integers and texts as a binary property list.
QByteArray toBytes(const QVariant& root);

/// The property list in a file; an invalid variant, and the reason in `error`, when the file can't be read,
/// is larger than 16 MiB, or is no property list.
QVariant read(const QString& path, QString* error);

/// Writes `root` as a binary property list, replacing the file at once or not at all; false with the reason
/// in `error` when that fails.
bool write(const QVariant& root, const QString& path, QString* error);

} // namespace PropertyList
