// SPDX-License-Identifier: MIT
#include "platform/bundle/PropertyList.h"

#include "tests/TestMain.h"

TEST(PropertyList, RefusesWhatIsDamaged) {
    // One dictionary, whose key "m\0" would end the process in the library that reads the format.
    const QByteArray objects = QByteArray("bplist00") + QByteArray("\xd1\1\2\x52m\0\x10\1", 8);
    const auto withTableAt = [](const QByteArray& before, const QByteArray& table) {
        return before + table + QByteArray(6, '\0') + "\1\1" + QByteArray(7, '\0') +
               static_cast<char>(table.size()) + QByteArray(15, '\0') + static_cast<char>(before.size());
    };
    const QByteArray zeroInKey = withTableAt(objects, QByteArray("\x08\x0b\x0e", 3));
    // The only object is a text at the very last byte, which is the low one of the table's place, 0x5f.
    const QByteArray textAtTheEnd =
        withTableAt(QByteArray("bplist00").leftJustified(0x5f, '\0'), QByteArray("\x7f"));
    ASSERT_EQ(textAtTheEnd.size(), 0x80);
    for (const QByteArray& bytes :
         {textAtTheEnd, QByteArray(), QByteArray("bplist00"), QByteArray("<plist><dict>"), zeroInKey}) {
        QString error;
        EXPECT_FALSE(PropertyList::fromBytes(bytes, &error).isValid()) << bytes.toHex().constData();
        EXPECT_FALSE(error.isEmpty());
    }
    QVariant nested = u"bottom"_s;
    for (int i = 0; i < 200; ++i)
        nested = QVariantList{nested};
    QString error;
    QVariant value = PropertyList::fromBytes(PropertyList::toBytes(nested), &error);
    int depth = 0;
    for (; !value.toList().isEmpty(); ++depth)
        value = value.toList().constFirst();
    EXPECT_EQ(depth, 65) << "what is deeper is cut off";
}
