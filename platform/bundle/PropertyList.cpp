// SPDX-License-Identifier: MIT
#include "platform/bundle/PropertyList.h"

#include "platform/files/RegularFile.h"

#include <QSaveFile>

#include <memory>

#include <plist/plist.h>

namespace {

constexpr qint64 kLargestFile = 16LL * 1024 * 1024;
constexpr int kDeepest = 64;

struct PlistFree {
    void operator()(void* node) const { plist_free(node); }
};
using PlistPtr = std::unique_ptr<void, PlistFree>;

/// A big-endian number in a binary property list; 0 where it is not all there.
quint64 number(const QByteArray& bytes, quint64 offset, quint64 size) {
    const auto all = static_cast<quint64>(bytes.size());
    quint64 value = 0;
    for (quint64 at = offset; size <= all && offset <= all - size && at < offset + size; ++at)
        value = value << 8 | static_cast<quint8>(bytes[static_cast<qsizetype>(at)]);
    return value;
}

/// Whether a binary property list has a dictionary in it: for one whose key holds a zero character libplist
/// ends the process. The format ends with a trailer of 32 bytes, which leads to a table of the objects'
/// offsets.
bool hasBinaryDictionary(const QByteArray& bytes) {
    const auto size = static_cast<quint64>(bytes.size());
    if (!bytes.startsWith("bplist") || size < 40)
        return false;
    const quint64 offsetSize = number(bytes, size - 26, 1);
    const quint64 count = number(bytes, size - 24, 8);
    const quint64 table = number(bytes, size - 8, 8);
    if (offsetSize == 0 || offsetSize > 8 || table >= size || count > (size - table) / offsetSize)
        return false; // refused by libplist
    for (quint64 i = 0; i < count; ++i) {
        const quint64 marker = number(bytes, number(bytes, table + i * offsetSize, offsetSize), 1);
        if (marker >> 4 == 0xD)
            return true;
    }
    return false;
}

QVariant fromPlist(plist_t node, int depth);

QVariant fromDictionary(plist_t node, int depth) {
    QVariantMap map;
    plist_dict_iter rawIterator = nullptr;
    plist_dict_new_iter(node, &rawIterator);
    const std::unique_ptr<void, decltype(&free)> iterator(rawIterator, &free);
    char* key = nullptr;
    plist_t value = nullptr;
    for (plist_dict_next_item(node, rawIterator, &key, &value); value;
         plist_dict_next_item(node, rawIterator, &key, &value)) {
        map.insert(QString::fromUtf8(key), fromPlist(value, depth + 1));
        free(key);
        key = nullptr;
    }
    return map;
}

QVariant fromArray(plist_t node, int depth) {
    const std::uint32_t count = plist_array_get_size(node);
    QVariantList list;
    list.reserve(static_cast<qsizetype>(count));
    plist_array_iter rawIterator = nullptr;
    plist_array_new_iter(node, &rawIterator);
    const std::unique_ptr<void, decltype(&free)> iterator(rawIterator, &free);
    for (std::uint32_t i = 0; i < count; ++i) {
        plist_t item = nullptr;
        plist_array_next_item(node, rawIterator, &item);
        list.append(fromPlist(item, depth + 1));
    }
    return list;
}

QVariant fromPlist(plist_t node, int depth) {
    if (!node || depth > kDeepest)
        return {};
    switch (plist_get_node_type(node)) {
    case PLIST_UINT: {
        std::uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return QVariant::fromValue<qulonglong>(value);
    }
    case PLIST_STRING:
        return QString::fromUtf8(plist_get_string_ptr(node, nullptr));
    case PLIST_ARRAY:
        return fromArray(node, depth);
    case PLIST_DICT:
        return fromDictionary(node, depth);
    default:
        return {};
    }
}

PlistPtr toPlist(const QVariant& value) {
    if (value.typeId() == QMetaType::QString)
        return PlistPtr(plist_new_string(value.toString().toUtf8().constData()));
    if (value.typeId() != QMetaType::QVariantList)
        return PlistPtr(plist_new_uint(value.toULongLong()));
    PlistPtr array(plist_new_array());
    const QVariantList items = value.toList();
    for (const QVariant& item : items)
        plist_array_append_item(array.get(), toPlist(item).release());
    return array;
}

} // namespace

QVariant PropertyList::fromBytes(const QByteArray& bytes, QString* error) {
    plist_t rawRoot = nullptr;
    // By format: what guesses the format is called otherwise from one release of libplist to the next.
    const auto size = static_cast<std::uint32_t>(bytes.size());
    if (!plist_is_binary(bytes.constData(), size))
        plist_from_xml(bytes.constData(), size, &rawRoot);
    else if (!hasBinaryDictionary(bytes))
        plist_from_bin(bytes.constData(), size, &rawRoot);
    const PlistPtr root(rawRoot);
    if (!root) {
        *error = QStringLiteral("it is no property list");
        return {};
    }
    return fromPlist(root.get(), 0);
}

QByteArray PropertyList::toBytes(const QVariant& root) {
    const PlistPtr node = toPlist(root);
    char* bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(node.get(), &bytes, &size);
    const std::unique_ptr<char, decltype(&free)> owned(bytes, &free);
    return QByteArray(bytes, static_cast<qsizetype>(size));
}

QVariant PropertyList::read(const QString& path, QString* error) {
    const auto bytes = RegularFile::read(path, kLargestFile, error);
    return bytes ? fromBytes(*bytes, error) : QVariant();
}

bool PropertyList::write(const QVariant& root, const QString& path, QString* error) {
    const QByteArray bytes = toBytes(root);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        *error = file.errorString();
        return false;
    }
    return true;
}
