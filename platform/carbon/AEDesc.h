// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/MacTypes.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <vector>

/// Stands for the Apple Event Manager's descriptors: typed bytes, lists, records, object specifiers, the null
/// descriptor, and events. Backed by plain values: a copy is a copy, and leaving the scope frees it.

using DescType = OSType;
using AEKeyword = OSType;

constexpr DescType typeNull = fourCharCode("null");
constexpr DescType typeWildCard = fourCharCode("****"); ///< as a wanted type: whatever it is
constexpr DescType typeAEList = fourCharCode("list");
constexpr DescType typeAERecord = fourCharCode("reco");
constexpr DescType typeAppleEvent = fourCharCode("aevt");
constexpr DescType typeObjectSpecifier = fourCharCode("obj ");
constexpr DescType typeInsertionLoc = fourCharCode("insl");
constexpr DescType typeUTF8Text = fourCharCode("utf8");
constexpr DescType typeUnicodeText = fourCharCode("utxt"); ///< UTF-16 in the machine's byte order
constexpr DescType typeSInt32 = fourCharCode("long");
constexpr DescType typeSInt16 = fourCharCode("shor");
constexpr DescType typeBoolean = fourCharCode("bool"); ///< one byte
constexpr DescType typeType = fourCharCode("type");
constexpr DescType typeEnumerated = fourCharCode("enum");
constexpr DescType typeAbsoluteOrdinal = fourCharCode("abso");
constexpr DescType typeProcessSerialNumber = fourCharCode("psn ");

constexpr AEKeyword keyDirectObject = fourCharCode("----");
constexpr AEKeyword keyErrorNumber = fourCharCode("errn");
constexpr AEKeyword keyAEDesiredClass = fourCharCode("want");
constexpr AEKeyword keyAEContainer = fourCharCode("from");
constexpr AEKeyword keyAEKeyForm = fourCharCode("form");
constexpr AEKeyword keyAEKeyData = fourCharCode("seld");
constexpr AEKeyword keyAEObject = fourCharCode("kobj");
constexpr AEKeyword keyAEPosition = fourCharCode("kpos");

constexpr OSStatus errAECoercionFail = -1700;
constexpr OSStatus errAEDescNotFound = -1701;
constexpr OSStatus errAECorruptData = -1702;
constexpr OSStatus errAEWrongDataType = -1703;
constexpr OSStatus errAEIllegalIndex = -1719;

struct AEKeyedDesc;

struct AEDesc {
    /// What a descriptor is made of, whatever its type is called: an object specifier is a record.
    enum class Form : std::uint8_t { bytes, list, record, event };

    DescType descriptorType = typeNull;
    Form form = Form::bytes;
    QByteArray data;                     ///< of bytes
    std::vector<AEKeyedDesc> items;      ///< of a list (keywords 0), a record, or an event's parameters
    std::vector<AEKeyedDesc> attributes; ///< of an event

    friend bool operator==(const AEDesc&, const AEDesc&);
};

struct AEKeyedDesc {
    AEKeyword keyword = 0;
    AEDesc desc;
};

/// Makes `result` a descriptor of `type` with a copy of `size` bytes.
OSStatus AECreateDesc(DescType type, const void* data, std::size_t size, AEDesc* result);

/// Makes `result` an empty list, or an empty record.
OSStatus AECreateList(bool isRecord, AEDesc* result);

/// Frees what a descriptor holds and leaves the null descriptor; never fails.
OSStatus AEDisposeDesc(AEDesc* desc);

/// Appends a copy of `desc` to a list.
OSStatus AEPutDesc(AEDesc* list, const AEDesc& desc);

/// The number of items of a list, a record or an event's parameters; errAEWrongDataType for bytes.
OSStatus AECountItems(const AEDesc& list, long* count);

/// The item at `index`, counted from 1, coerced to `type`; errAEDescNotFound outside the list. `result` is
/// left alone on failure, here and below.
OSStatus AEGetNthDesc(const AEDesc& list, long index, DescType type, AEDesc* result);

/// Puts a copy under `keyword` of a record or of an event, in place of what was there.
OSStatus AEPutParamDesc(AEDesc* record, AEKeyword keyword, const AEDesc& desc);
OSStatus AEPutParamPtr(AEDesc* record, AEKeyword keyword, DescType type, const void* data, std::size_t size);

/// What is under `keyword`, coerced to `type`; errAEDescNotFound when there is nothing.
OSStatus AEGetParamDesc(const AEDesc& record, AEKeyword keyword, DescType type, AEDesc* result);

/// The same as bytes: at most `maximumSize` of them are copied; `actualSize`, which may be null, is how many
/// there are.
OSStatus AEGetParamPtr(const AEDesc& record, AEKeyword keyword, DescType type, void* data,
                       std::size_t maximumSize, std::size_t* actualSize);

/// Converts between the two kinds of text, between the integers and booleans, between codes ('type' and
/// 'enum'), between records and the kinds of record ('obj ', 'insl') whose fields they have, and between a
/// thing and the list of it alone. Anything else, and bytes that are not of the type that they claim, gives
/// errAECoercionFail.
OSStatus AECoerceDesc(const AEDesc& desc, DescType type, AEDesc* result);

/// Makes `result` the specifier of an object of `desiredClass` in `container` (the null descriptor: the
/// application itself), found by `keyForm` and `keyData`.
OSStatus CreateObjSpecifier(DescType desiredClass, const AEDesc& container, DescType keyForm,
                            const AEDesc& keyData, AEDesc* result);

/// A descriptor as bytes that another process of this machine can read. At most `kLargestFlattenedDesc`
/// bytes and `kDeepestFlattenedDesc` levels; more gives paramErr.
OSStatus AEFlattenDesc(const AEDesc& desc, QByteArray* bytes);

/// Reads such bytes from anywhere; errAECorruptData when they are cut off, damaged, too long or too deep.
OSStatus AEUnflattenDesc(const QByteArray& bytes, AEDesc* result);

constexpr qsizetype kLargestFlattenedDesc = 1 << 20;
constexpr int kDeepestFlattenedDesc = 16;
