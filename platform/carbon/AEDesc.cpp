// SPDX-License-Identifier: MIT
#include "platform/carbon/AEDesc.h"

#include <QStringConverter>

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <span>

bool operator==(const AEDesc& left, const AEDesc& right) {
    const auto same = [](const AEKeyedDesc& a, const AEKeyedDesc& b) {
        return a.keyword == b.keyword && a.desc == b.desc;
    };
    return left.descriptorType == right.descriptorType && left.form == right.form &&
           left.data == right.data && std::ranges::equal(left.items, right.items, same) &&
           std::ranges::equal(left.attributes, right.attributes, same);
}

namespace {

using Form = AEDesc::Form;

template <typename Value>
AEDesc bytesDesc(DescType type, Value value) {
    return {type, Form::bytes, QByteArray(reinterpret_cast<const char*>(&value), sizeof value), {}, {}};
}

/// The value of a sound descriptor.
template <typename Value>
Value valueOf(const AEDesc& desc) {
    Value value;
    std::memcpy(&value, desc.data.constData(), sizeof value);
    return value;
}

const AEDesc* find(const std::vector<AEKeyedDesc>& items, AEKeyword keyword) {
    const auto found = std::ranges::find(items, keyword, &AEKeyedDesc::keyword);
    return found == items.end() ? nullptr : &found->desc;
}

bool hasKeywords(const AEDesc& desc) {
    return desc.form == Form::record || desc.form == Form::event;
}

std::optional<QString> textOf(const AEDesc& desc) {
    if (desc.descriptorType == typeUnicodeText) {
        QString text(desc.data.size() / 2, Qt::Uninitialized);
        std::memcpy(text.data(), desc.data.constData(), static_cast<std::size_t>(text.size()) * 2);
        return text;
    }
    // Stateless: what is cut off at the end is an error.
    QStringDecoder decoder(QStringConverter::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    QString text = decoder(desc.data);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

std::optional<AEDesc> textAs(const AEDesc& desc, DescType type) {
    const auto text = textOf(desc);
    if (!text)
        return std::nullopt;
    if (type == typeUnicodeText)
        return AEDesc{type,
                      Form::bytes,
                      QByteArray(reinterpret_cast<const char*>(text->utf16()), text->size() * 2),
                      {},
                      {}};
    QStringEncoder encoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QByteArray bytes = encoder(*text);
    if (encoder.hasError())
        return std::nullopt; // half of a surrogate pair
    return AEDesc{type, Form::bytes, std::move(bytes), {}, {}};
}

bool isNumber(DescType type) {
    return type == typeSInt32 || type == typeSInt16 || type == typeBoolean;
}

std::optional<AEDesc> numberAs(const AEDesc& desc, DescType type) {
    std::int32_t number = 0;
    if (desc.descriptorType == typeSInt32)
        number = valueOf<std::int32_t>(desc);
    else if (desc.descriptorType == typeSInt16)
        number = valueOf<std::int16_t>(desc);
    else
        number = valueOf<std::uint8_t>(desc) != 0;
    if (type == typeSInt32)
        return bytesDesc(type, number);
    if (type == typeBoolean)
        return bytesDesc(type, static_cast<std::uint8_t>(number != 0));
    using Short = std::numeric_limits<std::int16_t>;
    if (number < Short::min() || number > Short::max())
        return std::nullopt;
    return bytesDesc(type, static_cast<std::int16_t>(number));
}

bool isCode(DescType type) {
    return type == typeType || type == typeEnumerated;
}

bool isText(DescType type) {
    return type == typeUTF8Text || type == typeUnicodeText;
}

bool isRecord(DescType type) {
    return type == typeAERecord || type == typeInsertionLoc || type == typeObjectSpecifier;
}

bool hasFieldsOf(const AEDesc& record, DescType type) {
    const auto has = [&record](AEKeyword keyword) { return find(record.items, keyword) != nullptr; };
    if (type == typeInsertionLoc)
        return has(keyAEObject) && has(keyAEPosition);
    if (type == typeObjectSpecifier)
        return has(keyAEDesiredClass) && has(keyAEContainer) && has(keyAEKeyForm) && has(keyAEKeyData);
    return true;
}

/// Whether a descriptor, which may come from another process, is made of what its type calls for.
bool isSound(const AEDesc& desc) {
    switch (desc.descriptorType) {
    case typeAEList:
        return desc.form == Form::list;
    case typeAERecord:
    case typeObjectSpecifier:
    case typeInsertionLoc:
        return desc.form == Form::record && hasFieldsOf(desc, desc.descriptorType);
    case typeSInt32:
    case typeType:
    case typeEnumerated:
        return desc.form == Form::bytes && desc.data.size() == 4;
    case typeSInt16:
        return desc.form == Form::bytes && desc.data.size() == 2;
    case typeBoolean:
        return desc.form == Form::bytes && desc.data.size() == 1;
    case typeUTF8Text:
        return desc.form == Form::bytes;
    case typeUnicodeText:
        return desc.form == Form::bytes && desc.data.size() % 2 == 0;
    default:
        return true;
    }
}

std::optional<AEDesc> coerced(const AEDesc& desc, DescType type) {
    const DescType from = desc.descriptorType;
    if (type == typeWildCard)
        return desc;
    if (!isSound(desc))
        return std::nullopt;
    if (isText(from) && isText(type))
        return textAs(desc, type);
    if (from == type)
        return desc;
    if (isNumber(from) && isNumber(type))
        return numberAs(desc, type);
    if (isCode(from) && isCode(type))
        return AEDesc{type, Form::bytes, desc.data, {}, {}};
    if (desc.form == Form::record && isRecord(type) && hasFieldsOf(desc, type)) {
        AEDesc record = desc;
        record.descriptorType = type;
        return record;
    }
    if (type == typeAEList && desc.form != Form::list && from != typeNull)
        return AEDesc{typeAEList, Form::list, {}, {{0, desc}}, {}};
    // The item is no list itself, so that this ends.
    if (desc.form == Form::list && desc.items.size() == 1 && desc.items.front().desc.form != Form::list)
        return coerced(desc.items.front().desc, type);
    return std::nullopt;
}

/// Big-endian, whatever the machine: 'aed1', then for each descriptor its type, its form, and the count of
/// its bytes or the counts of its items and attributes, each behind its keyword.
constexpr OSType kFlattenedMark = fourCharCode("aed1");

class Flattener {
public:
    explicit Flattener(QByteArray* bytes) : bytes_(bytes) { number(kFlattenedMark); }

    bool desc(const AEDesc& desc, int depth) {
        if (depth > kDeepestFlattenedDesc)
            return false;
        number(desc.descriptorType);
        bytes_->append(static_cast<char>(desc.form));
        if (desc.form != Form::bytes)
            return items(desc.items, depth) && (desc.form != Form::event || items(desc.attributes, depth));
        number(static_cast<std::uint32_t>(desc.data.size()));
        bytes_->append(desc.data);
        return bytes_->size() <= kLargestFlattenedDesc;
    }

private:
    bool items(const std::vector<AEKeyedDesc>& list, int depth) {
        number(static_cast<std::uint32_t>(list.size()));
        return std::ranges::all_of(list, [&](const AEKeyedDesc& item) {
            number(item.keyword);
            return desc(item.desc, depth + 1);
        });
    }

    void number(std::uint32_t value) {
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes_->append(static_cast<char>(value >> shift & 0xFF));
    }

    QByteArray* bytes_;
};

class Unflattener {
public:
    explicit Unflattener(const QByteArray& bytes) : rest_(bytes.constData(), bytes.size()) {}

    bool root(AEDesc* result) {
        return number() == kFlattenedMark && desc(result, 0) && rest_.empty() && !failed_;
    }

private:
    bool desc(AEDesc* result, int depth) {
        result->descriptorType = number();
        const std::span<const char> form = take(1);
        if (failed_ || depth > kDeepestFlattenedDesc || form[0] < 0 ||
            form[0] > static_cast<char>(Form::event))
            return false;
        result->form = static_cast<Form>(form[0]);
        if (result->form != Form::bytes)
            return items(&result->items, depth) &&
                   (result->form != Form::event || items(&result->attributes, depth));
        const std::span<const char> data = take(number());
        result->data = QByteArray(data.data(), static_cast<qsizetype>(data.size()));
        return !failed_;
    }

    bool items(std::vector<AEKeyedDesc>* list, int depth) {
        // Nothing is reserved for a count that is only claimed.
        for (std::uint32_t count = number(); count > 0 && !failed_; --count) {
            list->push_back({number(), {}});
            if (!desc(&list->back().desc, depth + 1))
                return false;
        }
        return !failed_;
    }

    std::uint32_t number() {
        std::uint32_t value = 0;
        for (const char byte : take(4))
            value = value << 8 | static_cast<unsigned char>(byte);
        return value;
    }

    std::span<const char> take(std::size_t count) {
        failed_ = failed_ || count > rest_.size();
        if (failed_)
            return {};
        const auto taken = rest_.first(count);
        rest_ = rest_.subspan(count);
        return taken;
    }

    std::span<const char> rest_;
    bool failed_ = false;
};

OSStatus store(std::optional<AEDesc> desc, AEDesc* result) {
    if (!desc)
        return errAECoercionFail;
    *result = std::move(*desc);
    return noErr;
}

} // namespace

OSStatus AECreateDesc(DescType type, const void* data, std::size_t size, AEDesc* result) {
    const auto length = static_cast<qsizetype>(size);
    *result = {type, Form::bytes, QByteArray(static_cast<const char*>(data), length), {}, {}};
    return noErr;
}

OSStatus AECreateList(bool isRecord, AEDesc* result) {
    *result = isRecord ? AEDesc{typeAERecord, Form::record, {}, {}, {}}
                       : AEDesc{typeAEList, Form::list, {}, {}, {}};
    return noErr;
}

OSStatus AEDisposeDesc(AEDesc* desc) {
    *desc = {};
    return noErr;
}

OSStatus AEPutDesc(AEDesc* list, const AEDesc& desc) {
    if (list->form != Form::list)
        return errAEWrongDataType;
    list->items.push_back({0, desc});
    return noErr;
}

OSStatus AECountItems(const AEDesc& list, long* count) {
    if (list.form == Form::bytes)
        return errAEWrongDataType;
    *count = static_cast<long>(list.items.size());
    return noErr;
}

OSStatus AEGetNthDesc(const AEDesc& list, long index, DescType type, AEDesc* result) {
    if (list.form == Form::bytes)
        return errAEWrongDataType;
    if (index < 1 || index > static_cast<long>(list.items.size()))
        return errAEDescNotFound;
    return store(coerced(list.items[static_cast<std::size_t>(index) - 1].desc, type), result);
}

OSStatus AEPutParamDesc(AEDesc* record, AEKeyword keyword, const AEDesc& desc) {
    if (!hasKeywords(*record))
        return errAEWrongDataType;
    AEDesc copy = desc; // the descriptor may be a part of the record itself
    std::erase_if(record->items, [keyword](const AEKeyedDesc& item) { return item.keyword == keyword; });
    record->items.push_back({keyword, std::move(copy)});
    return noErr;
}

OSStatus AEPutParamPtr(AEDesc* record, AEKeyword keyword, DescType type, const void* data, std::size_t size) {
    AEDesc desc;
    AECreateDesc(type, data, size, &desc);
    return AEPutParamDesc(record, keyword, desc);
}

OSStatus AEGetParamDesc(const AEDesc& record, AEKeyword keyword, DescType type, AEDesc* result) {
    if (!hasKeywords(record))
        return errAEWrongDataType;
    const AEDesc* found = find(record.items, keyword);
    return found ? store(coerced(*found, type), result) : errAEDescNotFound;
}

OSStatus AEGetParamPtr(const AEDesc& record, AEKeyword keyword, DescType type, void* data,
                       std::size_t maximumSize, std::size_t* actualSize) {
    AEDesc desc;
    const OSStatus err = AEGetParamDesc(record, keyword, type, &desc);
    if (err != noErr)
        return err;
    if (desc.form != Form::bytes)
        return errAECoercionFail;
    const auto size = static_cast<std::size_t>(desc.data.size());
    if (const std::size_t copied = std::min(size, maximumSize); copied > 0)
        std::memcpy(data, desc.data.constData(), copied);
    if (actualSize)
        *actualSize = size;
    return noErr;
}

OSStatus AECoerceDesc(const AEDesc& desc, DescType type, AEDesc* result) {
    return store(coerced(desc, type), result);
}

OSStatus CreateObjSpecifier(DescType desiredClass, const AEDesc& container, DescType keyForm,
                            const AEDesc& keyData, AEDesc* result) {
    *result = {typeObjectSpecifier,
               Form::record,
               {},
               {{keyAEDesiredClass, bytesDesc(typeType, desiredClass)},
                {keyAEContainer, container},
                {keyAEKeyForm, bytesDesc(typeEnumerated, keyForm)},
                {keyAEKeyData, keyData}},
               {}};
    return noErr;
}

OSStatus AEFlattenDesc(const AEDesc& desc, QByteArray* bytes) {
    QByteArray flattened;
    Flattener flattener(&flattened);
    if (!flattener.desc(desc, 0) || flattened.size() > kLargestFlattenedDesc)
        return paramErr;
    *bytes = std::move(flattened);
    return noErr;
}

OSStatus AEUnflattenDesc(const QByteArray& bytes, AEDesc* result) {
    AEDesc desc;
    if (bytes.size() > kLargestFlattenedDesc || !Unflattener(bytes).root(&desc))
        return errAECorruptData;
    *result = std::move(desc);
    return noErr;
}
