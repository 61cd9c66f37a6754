// SPDX-License-Identifier: MIT
#include "platform/carbon/AEDesc.h"

#include <QString>

#include <limits>

#include <gtest/gtest.h>

namespace {

AEDesc bytes(DescType type, const QByteArray& data) {
    AEDesc desc;
    AECreateDesc(type, data.constData(), static_cast<std::size_t>(data.size()), &desc);
    return desc;
}

template <typename Value>
AEDesc number(DescType type, Value value) {
    return bytes(type, QByteArray(reinterpret_cast<const char*>(&value), sizeof value));
}

AEDesc utf16(const QString& text) {
    return bytes(typeUnicodeText, QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
}

AEDesc record(std::initializer_list<std::pair<AEKeyword, AEDesc>> fields) {
    AEDesc result;
    AECreateList(true, &result);
    for (const auto& [keyword, desc] : fields)
        AEPutParamDesc(&result, keyword, desc);
    return result;
}

AEDesc nested(int depth) {
    AEDesc desc;
    for (int i = 0; i < depth; ++i) {
        AEDesc list;
        AECreateList(false, &list);
        AEPutDesc(&list, desc);
        desc = list;
    }
    return desc;
}

} // namespace

TEST(AEDesc, CoercesTextOnlyWhenItIsText) {
    const QString text = QStringLiteral("/home/Zoë/\u6708 \U0001F319");
    const AEDesc asUtf8 = bytes(typeUTF8Text, text.toUtf8());
    AEDesc result;
    EXPECT_EQ(AECoerceDesc(asUtf8, typeUnicodeText, &result), noErr);
    EXPECT_EQ(result, utf16(text));
    EXPECT_EQ(AECoerceDesc(utf16(text), typeUTF8Text, &result), noErr);
    EXPECT_EQ(result, asUtf8);

    const AEDesc before = result;
    for (const char* damaged :
         {"/cut off \xC3", "/no utf8 \xFF/", "/overlong \xC0\xAF", "/half \xED\xA0\x80"})
        EXPECT_EQ(AECoerceDesc(bytes(typeUTF8Text, damaged), typeUnicodeText, &result), errAECoercionFail)
            << damaged;
    EXPECT_EQ(AECoerceDesc(bytes(typeUnicodeText, "odd"), typeUTF8Text, &result), errAECoercionFail);
    EXPECT_EQ(AECoerceDesc(utf16(QString(QChar(0xD83C))), typeUTF8Text, &result), errAECoercionFail);
    EXPECT_EQ(result, before) << "a failure leaves the result alone";
}

TEST(AEDesc, CoercesNumbersWithinTheirRange) {
    const auto coerced = [](const AEDesc& desc, DescType type) {
        AEDesc result;
        return AECoerceDesc(desc, type, &result) == noErr ? result : AEDesc{};
    };
    const std::int32_t notFound = -1728;
    EXPECT_EQ(coerced(number(typeSInt32, notFound), typeSInt16), number(typeSInt16, std::int16_t{-1728}));
    EXPECT_EQ(coerced(number(typeSInt16, std::int16_t{-43}), typeSInt32), number(typeSInt32, -43));
    EXPECT_EQ(coerced(number(typeSInt32, 32768), typeSInt16), AEDesc{});
    EXPECT_EQ(coerced(number(typeSInt32, -32769), typeSInt16), AEDesc{});
    EXPECT_EQ(coerced(number(typeSInt32, 256), typeBoolean), bytes(typeBoolean, "\1"));
    EXPECT_EQ(coerced(bytes(typeBoolean, "\7"), typeSInt32), number(typeSInt32, 1));

    // Too few bytes, too many, and none at all, even where the type is the wanted one.
    for (const char* data : {"", "abc", "abcde"}) {
        for (const DescType type : {typeSInt32, typeSInt16, typeBoolean, typeType, typeEnumerated})
            EXPECT_EQ(coerced(bytes(type, data), type), AEDesc{}) << data;
    }
}

TEST(AEDesc, CoercesRecordsThatHaveTheFields) {
    const AEDesc end = number(typeEnumerated, fourCharCode("end "));
    const AEDesc place = record({{keyAEObject, {}}, {keyAEPosition, end}});
    AEDesc result;
    ASSERT_EQ(AECoerceDesc(place, typeInsertionLoc, &result), noErr);
    EXPECT_EQ(result.descriptorType, typeInsertionLoc);
    EXPECT_EQ(AEGetParamDesc(result, keyAEPosition, typeType, &result), noErr);
    EXPECT_EQ(result, number(typeType, fourCharCode("end ")));
    EXPECT_EQ(AECoerceDesc(record({{keyAEPosition, end}}), typeInsertionLoc, &result), errAECoercionFail);
    EXPECT_EQ(AECoerceDesc(place, typeObjectSpecifier, &result), errAECoercionFail);
    EXPECT_EQ(AECoerceDesc(bytes(typeAERecord, "no record"), typeAERecord, &result), errAECoercionFail);
    EXPECT_EQ(AECoerceDesc(bytes(typeAEList, "no list"), typeAEList, &result), errAECoercionFail);

    // One thing is a list of one, and back.
    ASSERT_EQ(AECoerceDesc(place, typeAEList, &result), noErr);
    long count = 0;
    EXPECT_EQ(AECountItems(result, &count), noErr);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(AECoerceDesc(result, typeAERecord, &result), noErr);
    EXPECT_EQ(result, place);
    EXPECT_EQ(AECoerceDesc(nested(3), typeAERecord, &result), errAECoercionFail);
}

TEST(AEDesc, ReadsNothingOutsideAList) {
    AEDesc list;
    AECreateList(false, &list);
    AEPutDesc(&list, number(typeSInt32, 7));
    AEDesc result;
    for (const long outside :
         {0L, 2L, -1L, std::numeric_limits<long>::max(), std::numeric_limits<long>::min()})
        EXPECT_EQ(AEGetNthDesc(list, outside, typeSInt32, &result), errAEDescNotFound) << outside;
    EXPECT_EQ(AEGetNthDesc(list, 1, typeSInt32, &result), noErr);
    EXPECT_EQ(AEGetNthDesc(result, 1, typeSInt32, &result), errAEWrongDataType);
    EXPECT_EQ(AEGetParamDesc(list, keyDirectObject, typeSInt32, &result), errAEWrongDataType);
    EXPECT_EQ(AEPutDesc(&result, list), errAEWrongDataType);

    char buffer[4] = {'-', '-', '-', '-'};
    std::size_t size = 0;
    const AEDesc text = record({{keyDirectObject, bytes(typeUTF8Text, "moon")}});
    EXPECT_EQ(AEGetParamPtr(text, keyDirectObject, typeUTF8Text, buffer, 3, &size), noErr);
    EXPECT_EQ(QByteArray(buffer, 4), "moo-");
    EXPECT_EQ(size, 4u);

    AEDesc whole = text;
    EXPECT_EQ(AEPutParamDesc(&whole, keyDirectObject, whole.items.front().desc), noErr);
    EXPECT_EQ(whole, text);
    EXPECT_EQ(AEDisposeDesc(&whole), noErr);
    EXPECT_EQ(whole, AEDesc{});
}

TEST(AEDesc, FlattensAndUnflattens) {
    AEDesc specifier;
    CreateObjSpecifier(fourCharCode("logi"), {}, fourCharCode("indx"), number(typeSInt32, 3), &specifier);
    const AEDesc whole =
        record({{keyDirectObject, specifier}, {keyErrorNumber, number(typeSInt16, std::int16_t{-1})}});
    QByteArray flat;
    ASSERT_EQ(AEFlattenDesc(whole, &flat), noErr);
    AEDesc result;
    ASSERT_EQ(AEUnflattenDesc(flat, &result), noErr);
    EXPECT_EQ(result, whole);

    for (qsizetype length = 0; length < flat.size(); ++length)
        EXPECT_EQ(AEUnflattenDesc(flat.left(length), &result), errAECorruptData) << length;
    EXPECT_EQ(AEUnflattenDesc(flat + '\0', &result), errAECorruptData);
    EXPECT_EQ(result, whole) << "a failure leaves the result alone";
    for (qsizetype i = 0; i < flat.size(); ++i) {
        QByteArray damaged = flat;
        damaged[i] = static_cast<char>(~flat[i]); // huge counts, forms that there are none of
        AEDesc other;
        const bool isWhole = AEUnflattenDesc(damaged, &other) == noErr && other == whole;
        EXPECT_FALSE(isWhole) << i;
    }

    EXPECT_EQ(AEFlattenDesc(nested(kDeepestFlattenedDesc), &flat), noErr);
    EXPECT_EQ(AEUnflattenDesc(flat, &result), noErr);
    EXPECT_EQ(AEFlattenDesc(nested(kDeepestFlattenedDesc + 1), &flat), paramErr);
    EXPECT_EQ(AEFlattenDesc(bytes(typeUTF8Text, QByteArray(kLargestFlattenedDesc, 'x')), &flat), paramErr);
}
