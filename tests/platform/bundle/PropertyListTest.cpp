// SPDX-License-Identifier: MIT
#include "platform/bundle/PropertyList.h"

#include "tests/TestMain.h"

#include <gtest/gtest.h>

namespace {

QVariant read(const QByteArray& bytes, QString* error) {
    error->clear();
    return PropertyList::fromBytes(bytes, error);
}

} // namespace

TEST(PropertyList, ReadsBackWhatItWroteAndRefusesWhatIsDamaged) {
    const QVariant root = QVariantMap{
        {u"Größe"_s, 29.530589},
        {u"bytes"_s, QByteArray("\0\1\xff", 3)},
        {u"moons"_s, QVariantList{QVariant::fromValue<qulonglong>(4294967295U), true, u"🌕"_s, QString()}},
    };
    QString error;
    EXPECT_EQ(read(PropertyList::toBytes(root), &error), root);
    // The library that reads the format ends the process for keys like these.
    QByteArray zeroInKey = PropertyList::toBytes(QVariantMap{{u"moon"_s, 1}});
    zeroInKey.replace("moon", QByteArray("m\0on", 4));
    QByteArray zeroInWideKey = PropertyList::toBytes(QVariantMap{{u"mö"_s, 1}});
    zeroInWideKey.replace(QByteArray("\0m\0\xf6", 4), QByteArray("\0m\0\0", 4));
    // The only object is a text at the very last byte, which is the low one of the table's place, 0x5f.
    QByteArray textAtTheEnd = QByteArray("bplist00").leftJustified(0x5f, '\0') + '\x7f';
    textAtTheEnd += QByteArray(6, '\0') + "\1\1" + QByteArray(7, '\0') + '\1' + QByteArray(15, '\0') + '\x5f';
    for (const QByteArray& bytes : {textAtTheEnd, QByteArray(), QByteArray("bplist00"),
                                    QByteArray("<plist><dict>"), zeroInKey, zeroInWideKey}) {
        EXPECT_FALSE(read(bytes, &error).isValid()) << bytes.toHex().constData();
        EXPECT_FALSE(error.isEmpty());
    }
    QVariant nested = u"bottom"_s;
    for (int i = 0; i < 200; ++i)
        nested = QVariantList{nested};
    QVariant value = read(PropertyList::toBytes(nested), &error);
    int depth = 0;
    for (; !value.toList().isEmpty(); ++depth)
        value = value.toList().constFirst();
    EXPECT_EQ(depth, 65) << "what is deeper is cut off";
}
