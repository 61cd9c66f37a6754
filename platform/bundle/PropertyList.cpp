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

/// The objects of a binary property list, as far as finding its texts needs them: the format ends with a
/// trailer of 32 bytes, which leads to a table of the objects' offsets.
class BinaryObjects {
public:
    explicit BinaryObjects(const QByteArray& bytes) : bytes_(bytes) {}

    /// Whether a text has a zero character in it. libplist takes all of it for a dictionary's key, sees that
    /// it is shorter as a C string, and ends the process.
    bool anyTextHasZero() const {
        const qsizetype trailer = bytes_.size() - 32;
        if (!bytes_.startsWith("bplist") || trailer < 8)
            return false;
        const quint64 offsetSize = number(trailer + 6, 1);
        const quint64 count = number(trailer + 8, 8);
        const quint64 table = number(trailer + 24, 8);
        const auto size = static_cast<quint64>(bytes_.size());
        if (offsetSize == 0 || offsetSize > 8 || table >= size || count > (size - table) / offsetSize)
            return false; // refused by libplist
        for (quint64 i = 0; i < count; ++i) {
            if (hasZero(number(static_cast<qsizetype>(table + i * offsetSize), offsetSize)))
                return true;
        }
        return false;
    }

private:
    /// A big-endian number; 0 where it is not all there.
    quint64 number(qsizetype offset, quint64 size) const {
        quint64 value = 0;
        if (offset < 0 || offset > bytes_.size() || static_cast<quint64>(bytes_.size() - offset) < size)
            return 0;
        for (const char byte : QByteArrayView(bytes_).sliced(offset, static_cast<qsizetype>(size)))
            value = value << 8 | static_cast<quint8>(byte);
        return value;
    }

    bool hasZero(quint64 offset) const {
        if (offset >= static_cast<quint64>(bytes_.size()))
            return false;
        auto at = static_cast<qsizetype>(offset);
        const quint64 marker = number(at++, 1);
        const qsizetype width = marker >> 4 == 5 ? 1 : marker >> 4 == 6 ? 2 : 0; // ASCII, UTF-16
        quint64 length = marker & 0xF;
        if (width != 0 && length == 0xF) { // an integer object tells it
            const quint64 integer = 1ULL << (number(at++, 1) & 0x3);
            length = number(at, integer);
            at += static_cast<qsizetype>(integer);
        }
        const qsizetype end = bytes_.size() - width;
        for (quint64 i = 0; width != 0 && i < length && at <= end; ++i, at += width) {
            if (number(at, static_cast<quint64>(width)) == 0)
                return true;
        }
        return false;
    }

    const QByteArray& bytes_;
};

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
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        std::uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return QVariant::fromValue<qulonglong>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING:
        return QString::fromUtf8(plist_get_string_ptr(node, nullptr));
    case PLIST_DATA: {
        std::uint64_t size = 0;
        const char* bytes = plist_get_data_ptr(node, &size);
        return QByteArray(bytes, static_cast<qsizetype>(size));
    }
    case PLIST_ARRAY:
        return fromArray(node, depth);
    case PLIST_DICT:
        return fromDictionary(node, depth);
    default:
        return {};
    }
}

PlistPtr toPlist(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QVariantList: {
        PlistPtr array(plist_new_array());
        const QVariantList items = value.toList();
        for (const QVariant& item : items)
            plist_array_append_item(array.get(), toPlist(item).release());
        return array;
    }
    case QMetaType::QVariantMap: {
        PlistPtr dictionary(plist_new_dict());
        const QVariantMap map = value.toMap();
        for (auto it = map.begin(); it != map.end(); ++it)
            plist_dict_set_item(dictionary.get(), it.key().toUtf8().constData(),
                                toPlist(it.value()).release());
        return dictionary;
    }
    case QMetaType::Bool:
        return PlistPtr(plist_new_bool(value.toBool() ? 1 : 0));
    case QMetaType::Double:
    case QMetaType::Float:
        return PlistPtr(plist_new_real(value.toDouble()));
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return PlistPtr(plist_new_uint(value.toULongLong()));
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return PlistPtr(plist_new_data(bytes.constData(), static_cast<std::uint64_t>(bytes.size())));
    }
    default:
        return PlistPtr(plist_new_string(value.toString().toUtf8().constData()));
    }
}

} // namespace

QVariant PropertyList::fromBytes(const QByteArray& bytes, QString* error) {
    plist_t rawRoot = nullptr;
    // By format: what guesses the format is called otherwise from one release of libplist to the next.
    const auto size = static_cast<std::uint32_t>(bytes.size());
    if (!plist_is_binary(bytes.constData(), size))
        plist_from_xml(bytes.constData(), size, &rawRoot);
    else if (!BinaryObjects(bytes).anyTextHasZero())
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
