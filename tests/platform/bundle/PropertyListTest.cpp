// SPDX-License-Identifier: MIT
#include "platform/bundle/PropertyList.h"

#include <gtest/gtest.h>

namespace {

QVariant read(const QByteArray& bytes, QString* error) {
    error->clear();
    return PropertyList::fromBytes(bytes, error);
}

} // namespace

TEST(PropertyList, ReadsBackWhatItWrote) {
    const QVariant root = QVariantMap{
        {QStringLiteral("Größe"), 29.530589},
        {QStringLiteral("bytes"), QByteArray("\0\1\xff", 3)},
        {QStringLiteral("moons"),
         QVariantList{QVariant::fromValue<qulonglong>(4294967295U), true, QStringLiteral("🌕"), QString()}},
    };
    QString error;
    EXPECT_EQ(read(PropertyList::toBytes(root), &error), root);
    EXPECT_TRUE(error.isEmpty());
}

TEST(PropertyList, RefusesWhatIsDamaged) {
    // The library that reads the format ends the process for a key like this one.
    QByteArray zeroInKey = PropertyList::toBytes(QVariantMap{{QStringLiteral("moon"), 1}});
    ASSERT_EQ(zeroInKey.count("moon"), 1);
    zeroInKey.replace("moon", QByteArray("m\0on", 4));
    QByteArray zeroInWideKey = PropertyList::toBytes(QVariantMap{{QStringLiteral("mö"), 1}});
    const QByteArray wide("\0m\0\xf6", 4);
    ASSERT_EQ(zeroInWideKey.count(wide), 1);
    zeroInWideKey.replace(wide, QByteArray("\0m\0\0", 4));
    // The only object is a text at the very last byte, which is the low one of the table's place, 0x5f.
    QByteArray textAtTheEnd = QByteArray("bplist00").leftJustified(0x5f, '\0') + '\x7f';
    textAtTheEnd += QByteArray(6, '\0') + "\1\1" + QByteArray(7, '\0') + '\1' + QByteArray(15, '\0') + '\x5f';
    ASSERT_EQ(textAtTheEnd.size(), 0x80);
    for (const QByteArray& bytes : {textAtTheEnd, QByteArray(), QByteArray("bplist00"),
                                    QByteArray("<plist><dict>"), zeroInKey, zeroInWideKey}) {
        QString error;
        EXPECT_FALSE(read(bytes, &error).isValid()) << bytes.toHex().constData();
        EXPECT_FALSE(error.isEmpty());
    }
}

TEST(PropertyList, CutsOffWhatIsTooDeep) {
    QVariant nested = QStringLiteral("bottom");
    for (int i = 0; i < 200; ++i)
        nested = QVariantList{nested};
    QString error;
    QVariant value = read(PropertyList::toBytes(nested), &error);
    int depth = 0;
    for (; !value.toList().isEmpty(); ++depth)
        value = value.toList().constFirst();
    EXPECT_EQ(depth, 65);
    EXPECT_FALSE(value.isValid());
}
