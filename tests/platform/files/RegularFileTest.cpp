// SPDX-License-Identifier: MIT
#include "platform/files/RegularFile.h"

#include "platform/log/Log.h"
#include "tests/TestMain.h"

#include <QDir>

#include <sys/stat.h>

TEST(RegularFile, ReadsNothingThatOnlyStandsInAFilesPlace) {
    const QTemporaryDir folder;
    const auto path = [&](const char* name) { return folder.filePath(QLatin1String(name)); };
    writeFile(path("file"), "moon");
    QFile::link(path("file"), path("link"));
    QFile::link(path("none"), path("dangling"));
    QFile::link(u"/dev/zero"_s, path("device"));
    QDir().mkpath(path("folder"));
    ASSERT_EQ(mkfifo(qPrintable(path("pipe")), 0600), 0);

    QString error;
    for (const char* name : {"file", "link"})
        EXPECT_EQ(RegularFile::read(path(name), 4, &error), "moon") << name;
    EXPECT_EQ(error, QString());
    EXPECT_EQ(RegularFile::read(path("file"), 3, &error), std::nullopt);
    EXPECT_EQ(error, u"it is too large");
    for (const char* name : {"folder", "pipe", "device"}) {
        EXPECT_EQ(RegularFile::read(path(name), 1 << 20, &error), std::nullopt) << name;
        EXPECT_EQ(error, u"it is no regular file") << name;
        EXPECT_TRUE(RegularFile::isOtherThing(path(name))) << name;
    }
    for (const char* name : {"none", "dangling", ""}) {
        EXPECT_EQ(RegularFile::read(path(name), 1 << 20, &error), std::nullopt) << name;
        EXPECT_FALSE(RegularFile::isOtherThing(path(name)) && *name) << name;
    }
}

TEST(LogTest, AForeignTextIsOneVisibleLine) {
    const CaughtLog log;
    logLine(u"a\nb\x1b[31mc\u202ed\u2028\u0085 \u00e9 \u6708 \U0001F319"_s);
    EXPECT_EQ(log.lines(), QStringList(QStringLiteral("a\\nb\\u001b[31mc\\u202ed\\u2028\\u0085 \u00e9 \u6708 "
                                                      "\U0001F319")));
}
