// SPDX-License-Identifier: MIT
#include "platform/preferences/Preferences.h"

#include "tests/TestMain.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <functional>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString kNumber = QStringLiteral("Number");
const QString kText = QStringLiteral("Text");

class PreferencesTest : public testing::Test {
protected:
    QString path(const char* suffix = "") const {
        return folder_.filePath(QStringLiteral("trial.conf") + QLatin1String(suffix));
    }

    void write(const QByteArray& bytes) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray read(const char* suffix = "") const {
        QFile file(path(suffix));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<Preferences> open() const {
        auto defaults = std::make_unique<Preferences>(path());
        defaults->registerDefaults(
            {{kNumber, 2.5}, {kText, QStringLiteral("GMT +0")}, {QStringLiteral("Flag"), true}});
        return defaults;
    }

    const QTemporaryDir folder_;
};

} // namespace

TEST_F(PreferencesTest, WhatIsStoredIsReadBackByTheNextRun) {
    const QString moon = QStringLiteral("GMT \u2212 \u6708, \"a;b=c\" %41\n");
    {
        const auto defaults = open();
        QStringList changes;
        QObject::connect(defaults.get(), &Preferences::valueChanged,
                         [&](const QString& key) { changes.append(key); });
        defaults->setFloat(5.4F, kNumber);
        defaults->setFloat(5.4F, kNumber);
        defaults->setObject(moon, kText);
        defaults->setBool(true, QStringLiteral("Flag"));
        defaults->setInteger(-3, QStringLiteral("Other"));
        EXPECT_EQ(changes, (QStringList{kNumber, kText, QStringLiteral("Other")}))
            << "each that answers otherwise now";
        EXPECT_TRUE(defaults->synchronize());
    }
    EXPECT_TRUE(read().contains("Number=5.4\n")) << read().toStdString();
    const auto defaults = open();
    EXPECT_EQ(defaults->floatForKey(kNumber), 5.4F);
    EXPECT_EQ(defaults->stringForKey(kText), moon);
    EXPECT_TRUE(defaults->boolForKey(QStringLiteral("Flag")));
    EXPECT_EQ(defaults->integerForKey(QStringLiteral("Other")), -3);
}

TEST_F(PreferencesTest, RegisteredValuesAnswerAndAreNeverWritten) {
    {
        const auto defaults = open();
        EXPECT_EQ(defaults->floatForKey(kNumber), 2.5F);
        EXPECT_EQ(defaults->floatForKey(QStringLiteral("Unknown")), 0.0F);
        EXPECT_TRUE(defaults->stringForKey(QStringLiteral("Unknown")).isEmpty());
        defaults->setObject(QStringLiteral("own"), kText);
        defaults->setFloat(2.5F, kNumber); // the user's choice, though it is the default
        defaults->synchronize();
        EXPECT_TRUE(read().contains("Number=2.5\n"));
        QStringList changes;
        QObject::connect(defaults.get(), &Preferences::valueChanged,
                         [&](const QString& key) { changes.append(key); });
        defaults->removeObjectForKey(kText);
        defaults->removeObjectForKey(kNumber);
        EXPECT_EQ(changes, QStringList{kText});
        EXPECT_EQ(defaults->stringForKey(kText), u"GMT +0");
    }
    EXPECT_FALSE(read().contains("Number") || read().contains("Text") || read().contains("Flag"));
}

TEST_F(PreferencesTest, AValueOfAnotherKindOrRangeIsLoggedOnceAndTheDefaultServes) {
    for (const char* wrong : {"north", "nan", "1e99", "\"1, 2\"", "", "90.5", "-91"}) {
        write(QByteArray("[General]\nNumber=") + wrong + "\nFlag=maybe\nWhole=1.5\n");
        const CaughtLog log;
        const auto defaults = open();
        defaults->registerRange(kNumber, {-90.0F, 90.0F});
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(defaults->floatForKey(kNumber), 2.5F) << wrong;
            EXPECT_TRUE(defaults->boolForKey(QStringLiteral("Flag")));
            EXPECT_EQ(defaults->integerForKey(QStringLiteral("Whole")), 0);
        }
        EXPECT_EQ(log.lines().size(), 3) << wrong;
        EXPECT_TRUE(log.lines().value(0).contains(kNumber));
    }
    write("[General]\nFlag=NO\nNumber=7\n");
    EXPECT_FALSE(open()->boolForKey(QStringLiteral("Flag")));
    EXPECT_EQ(open()->integerForKey(kNumber), 7);
}

TEST_F(PreferencesTest, ADamagedFileIsKeptAsideEveryTime) {
    const QByteArray first("\xff\xfe\x00garbage", 10);
    const QByteArray second("[General\nNumber", 15);
    for (const QByteArray& damaged : {first, second}) {
        write(damaged);
        const CaughtLog log;
        const auto defaults = open();
        EXPECT_EQ(log.lines().size(), 1);
        EXPECT_EQ(defaults->floatForKey(kNumber), 2.5F);
        defaults->setFloat(9.0F, kNumber);
        EXPECT_TRUE(defaults->synchronize());
        EXPECT_EQ(open()->floatForKey(kNumber), 9.0F);
    }
    EXPECT_EQ(read(".damaged"), first) << "the second does not take its place";
    EXPECT_EQ(read(".damaged-2"), second);
}

TEST_F(PreferencesTest, NobodyElseReadsThem) {
    const QString file = path("-folder/lumivane/trial.conf");
    const QString folder = QFileInfo(file).path();
    const auto mode = [](const QString& name) {
        struct stat status {};
        return stat(qPrintable(name), &status) == 0 ? status.st_mode & 07777 : 0U;
    };
    const mode_t before = umask(0);
    const auto expectPrivate = [&](const char* when) {
        EXPECT_EQ(mode(folder), 0700U) << when;
        EXPECT_EQ(mode(file), 0600U) << when;
    };
    {
        Preferences defaults(file);
        defaults.setInteger(1, kNumber);
        QCoreApplication::processEvents();
        expectPrivate("made by the event loop");
        chmod(qPrintable(folder), 0777);
        QFile::remove(file);
        defaults.setInteger(2, kNumber);
        defaults.synchronize();
        expectPrivate("made anew");
        chmod(qPrintable(file), 0666);
        defaults.setInteger(3, kNumber);
        defaults.synchronize();
        expectPrivate("written over a wider one");
    }
    chmod(qPrintable(folder), 0755);
    chmod(qPrintable(file), 0644);
    EXPECT_EQ(Preferences(file).integerForKey(kNumber), 3);
    expectPrivate("as an earlier version left them");
    umask(before);
}

TEST_F(PreferencesTest, WhatIsNoFileIsKeptAsideAndNotWaitedFor) {
    const std::function<void()> things[] = {
        [this] { mkfifo(qPrintable(path()), 0600); },
        [this] { mkdir(qPrintable(path()), 0700); },
        [this] { QFile::link(QStringLiteral("/dev/zero"), path()); },
    };
    for (const auto& put : things) {
        put();
        const CaughtLog log;
        {
            const auto defaults = open();
            EXPECT_EQ(defaults->floatForKey(kNumber), 2.5F);
            defaults->setInteger(4, kNumber);
            EXPECT_TRUE(defaults->synchronize());
            EXPECT_TRUE(QFile::remove(path()));
            put(); // while the program runs
            defaults->setInteger(5, kNumber);
            EXPECT_TRUE(defaults->synchronize());
        }
        EXPECT_EQ(open()->integerForKey(kNumber), 5);
        EXPECT_EQ(log.lines().size(), 2) << qPrintable(log.lines().join(u'\n'));
        QFile::remove(path());
    }
}

TEST_F(PreferencesTest, AFolderThatRefusesIsLogged) {
    write("");
    Preferences defaults(path("/inside/trial.conf"));
    defaults.setInteger(1, kNumber);
    const CaughtLog log;
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_TRUE(log.lines().value(0).contains(u"can't be written"));
    EXPECT_EQ(defaults.integerForKey(kNumber), 1) << "it serves for this run";
    QFile::remove(path());
    EXPECT_TRUE(defaults.synchronize()) << "once there is room";
    EXPECT_EQ(Preferences(path("/inside/trial.conf")).integerForKey(kNumber), 1);
}
