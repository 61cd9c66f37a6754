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

constexpr PreferenceKey<float> kNumber{QLatin1String("Number"), 2.5F, {-90.0F, 90.0F}};
constexpr PreferenceKey<int> kCount{QLatin1String("Count"), 12};
constexpr PreferenceKey<bool> kFlag{QLatin1String("Flag"), true};
const PreferenceKey<QString> kText{QLatin1String("Text"), QStringLiteral("GMT +0")};

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

    std::unique_ptr<Preferences> open() const { return std::make_unique<Preferences>(path()); }

    const QTemporaryDir folder_;
};

} // namespace

TEST_F(PreferencesTest, WhatIsStoredIsReadBackByTheNextRun) {
    const QString moon = QStringLiteral("GMT \u2212 \u6708, \"a;b=c\" %41\n");
    {
        const auto defaults = open();
        defaults->registerKey(kFlag);
        QStringList changes;
        QObject::connect(defaults.get(), &Preferences::valueChanged,
                         [&](const QString& name) { changes.append(name); });
        defaults->set(kNumber, -74.006386F);
        defaults->set(kNumber, -74.006386F);
        defaults->set(kText, moon);
        defaults->set(kFlag, true);
        defaults->set(kCount, -3);
        EXPECT_EQ(changes, (QStringList{kNumber.name, kText.name, kCount.name}))
            << "each that answers otherwise now";
        EXPECT_TRUE(defaults->synchronize());
    }
    EXPECT_TRUE(read().contains("Number=-74.006386\n")) << "the shortest text: " << read().toStdString();
    const auto defaults = open();
    const PreferenceKey<float> anywhere{kNumber.name};
    EXPECT_EQ(defaults->value(anywhere), -74.006386F);
    EXPECT_EQ(defaults->value(kText), moon);
    EXPECT_TRUE(defaults->value(kFlag));
    EXPECT_EQ(defaults->value(kCount), -3);
}

TEST_F(PreferencesTest, DefaultsAnswerAndAreNeverWritten) {
    {
        const auto defaults = open();
        EXPECT_EQ(defaults->value(kNumber), 2.5F);
        EXPECT_EQ(defaults->floatForKey(kNumber.name), 0.0F) << "no name that is registered";
        EXPECT_TRUE(defaults->stringForKey(kText.name).isEmpty());
        defaults->registerKey(kText);
        defaults->registerKey(kNumber, 52.5F);
        EXPECT_EQ(defaults->value(kNumber), 52.5F);
        EXPECT_EQ(defaults->floatForKey(kNumber.name), 52.5F);
        EXPECT_EQ(defaults->rangeForKey(kNumber.name).largest, 90.0F);
        defaults->set(kText, QStringLiteral("own"));
        defaults->set(kNumber, 52.5F); // the user's choice, though it is the default
        defaults->synchronize();
        EXPECT_TRUE(read().contains("Number=52.5\n"));
        QStringList changes;
        QObject::connect(defaults.get(), &Preferences::valueChanged,
                         [&](const QString& name) { changes.append(name); });
        defaults->remove(kText);
        defaults->remove(kNumber);
        EXPECT_EQ(changes, QStringList{kText.name});
        EXPECT_EQ(defaults->value(kText), u"GMT +0");
    }
    EXPECT_FALSE(read().contains("Number") || read().contains("Text") || read().contains("Flag"));
}

TEST_F(PreferencesTest, AValueOfAnotherKindOrRangeIsLoggedOnceAndTheDefaultServes) {
    for (const char* wrong : {"north", "nan", "1e99", "\"1, 2\"", "", "90.5", "-91"}) {
        write(QByteArray("[General]\nNumber=") + wrong + "\nFlag=maybe\nCount=1.5\n");
        const CaughtLog log;
        const auto defaults = open();
        defaults->registerKey(kNumber);
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(defaults->value(kNumber), 2.5F) << wrong;
            EXPECT_EQ(defaults->floatForKey(kNumber.name), 2.5F) << wrong;
            EXPECT_TRUE(defaults->value(kFlag));
            EXPECT_EQ(defaults->value(kCount), 12);
        }
        EXPECT_EQ(log.lines().size(), 3) << wrong;
        EXPECT_TRUE(log.lines().value(0).contains(kNumber.name));
    }
    write("[General]\nFlag=NO\nNumber=7\n");
    EXPECT_FALSE(open()->value(kFlag));
    EXPECT_EQ(open()->value(kNumber), 7.0F);
}

TEST_F(PreferencesTest, ADamagedFileIsKeptAsideEveryTime) {
    const QByteArray first("\xff\xfe\x00garbage", 10);
    const QByteArray second("[General\nNumber", 15);
    for (const QByteArray& damaged : {first, second}) {
        write(damaged);
        const CaughtLog log;
        const auto defaults = open();
        EXPECT_EQ(log.lines().size(), 1);
        EXPECT_EQ(defaults->value(kNumber), 2.5F);
        defaults->set(kNumber, 9.0F);
        EXPECT_TRUE(defaults->synchronize());
        EXPECT_EQ(open()->value(kNumber), 9.0F);
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
        defaults.set(kCount, 1);
        QCoreApplication::processEvents();
        expectPrivate("made by the event loop");
        chmod(qPrintable(folder), 0777);
        QFile::remove(file);
        defaults.set(kCount, 2);
        defaults.synchronize();
        expectPrivate("made anew");
        chmod(qPrintable(file), 0666);
        defaults.set(kCount, 3);
        defaults.synchronize();
        expectPrivate("written over a wider one");
    }
    chmod(qPrintable(folder), 0755);
    chmod(qPrintable(file), 0644);
    EXPECT_EQ(Preferences(file).value(kCount), 3);
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
            EXPECT_EQ(defaults->value(kNumber), 2.5F);
            defaults->set(kCount, 4);
            EXPECT_TRUE(defaults->synchronize());
            EXPECT_TRUE(QFile::remove(path()));
            put(); // while the program runs
            defaults->set(kCount, 5);
            EXPECT_TRUE(defaults->synchronize());
        }
        EXPECT_EQ(open()->value(kCount), 5);
        EXPECT_EQ(log.lines().size(), 2) << qPrintable(log.lines().join(u'\n'));
        QFile::remove(path());
    }
}

TEST_F(PreferencesTest, AFolderThatRefusesIsLogged) {
    write("");
    Preferences defaults(path("/inside/trial.conf"));
    defaults.set(kCount, 1);
    const CaughtLog log;
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_TRUE(log.lines().value(0).contains(u"can't be written"));
    EXPECT_EQ(defaults.value(kCount), 1) << "it serves for this run";
    QFile::remove(path());
    EXPECT_TRUE(defaults.synchronize()) << "once there is room";
    EXPECT_EQ(Preferences(path("/inside/trial.conf")).value(kCount), 1);
}
