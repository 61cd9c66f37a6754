// SPDX-License-Identifier: MIT
#include "platform/preferences/Preferences.h"

#include "tests/TestMain.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <functional>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr PreferenceKey<float> kNumber{QLatin1String("Number"), 2.5F, {-90.0F, 90.0F}};
constexpr PreferenceKey<int> kCount{QLatin1String("Count"), 12};
constexpr PreferenceKey<bool> kFlag{QLatin1String("Flag"), true};
const PreferenceKey<QString> kText{QLatin1String("Text"), u"GMT +0"_s};

class PreferencesTest : public testing::Test {
protected:
    Preferences& open() {
        preferences_.reset(); // the last run's end
        preferences_ = std::make_unique<Preferences>(path_);
        QObject::connect(preferences_.get(), &Preferences::valueChanged,
                         [this](const QString& name) { changes_.append(name); });
        return *preferences_;
    }

    const QTemporaryDir folder_;
    const QString path_ = folder_.filePath(u"lumivane/trial.conf"_s);
    std::unique_ptr<Preferences> preferences_;
    QStringList changes_;
};

} // namespace

TEST_F(PreferencesTest, WhatIsStoredIsReadBackAndDefaultsAreNeverWritten) {
    const QString moon = u"GMT \u2212 \u6708, \"a;b=c\" %41\n"_s;
    Preferences& first = open();
    EXPECT_EQ(first.value(kNumber), 2.5F);
    EXPECT_EQ(first.floatForKey(kNumber.name), 0.0F) << "no name that is registered";
    first.registerKey(kText);
    first.registerKey(kFlag);
    first.registerKey(kNumber, 52.5F);
    EXPECT_EQ(first.value(kNumber), 52.5F);
    EXPECT_EQ(first.floatForKey(kNumber.name), 52.5F);
    for (int i = 0; i < 2; ++i)
        first.set(kNumber, -74.006386F);
    first.set(kText, moon);
    first.set(kFlag, true); // the user's choice, though it is the default
    EXPECT_EQ(changes_, (QStringList{kNumber.name, kText.name})) << "each that answers otherwise now";
    EXPECT_TRUE(first.synchronize());
    const QByteArray bytes = readFile(path_);
    EXPECT_TRUE(bytes.contains("Number=-74.006386\n") && bytes.contains("Flag=true\n")) << bytes.constData();
    EXPECT_FALSE(bytes.contains("Count"));

    Preferences& second = open();
    EXPECT_EQ(second.value(kNumber), -74.006386F);
    EXPECT_EQ(second.value(kText), moon);
    changes_.clear();
    second.remove(kText);
    second.remove(kCount);
    EXPECT_EQ(changes_, QStringList{kText.name});
    EXPECT_EQ(open().value(kText), u"GMT +0");
}

TEST_F(PreferencesTest, AValueOfAnotherKindOrRangeIsLoggedOnceAndTheDefaultServes) {
    for (const char* wrong : {"north", "nan", "1e99", "\"1, 2\"", "", "90.5"}) {
        writeFile(path_, QByteArray("[General]\nNumber=") + wrong + "\nFlag=maybe\nCount=1.5\n");
        const CaughtLog log;
        Preferences& defaults = open();
        defaults.registerKey(kNumber);
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(defaults.value(kNumber), 2.5F) << wrong;
            EXPECT_EQ(defaults.floatForKey(kNumber.name), 2.5F) << wrong;
            EXPECT_TRUE(defaults.value(kFlag));
            EXPECT_EQ(defaults.value(kCount), 12);
        }
        EXPECT_EQ(log.lines().size(), 3) << wrong;
        EXPECT_TRUE(log.lines().value(0).contains(kNumber.name));
    }
    writeFile(path_, "[General]\nFlag=NO\n");
    EXPECT_FALSE(open().value(kFlag));
}

TEST_F(PreferencesTest, NobodyElseReadsThem) {
    const auto mode = [](const QString& name) {
        struct stat status {};
        return stat(qPrintable(name), &status) == 0 ? status.st_mode & 07777 : 0U;
    };
    const QString folder = QFileInfo(path_).path();
    const mode_t before = umask(0);
    Preferences& defaults = open();
    for (const int step : {0, 1, 2}) { // made; written over a wider one; read as earlier versions left them
        step < 2 ? defaults.set(kCount, step) : (void)Preferences(path_);
        QCoreApplication::processEvents();
        EXPECT_EQ(mode(folder), 0700U) << step;
        EXPECT_EQ(mode(path_), 0600U) << step;
        chmod(qPrintable(folder), 0777);
        chmod(qPrintable(path_), 0666);
    }
    umask(before);
}

TEST_F(PreferencesTest, WhatIsDamagedOrNoFileIsKeptAside) {
    const QByteArray garbage("\xff\xfe\x00garbage", 10);
    const QByteArray unfinished("[General\nNumber", 15);
    const std::function<void()> things[] = {
        [&] { writeFile(path_, garbage); },
        [&] { writeFile(path_, unfinished); },
        [&] { mkfifo(qPrintable(path_), 0600); },
        [&] { QFile::link(u"/dev/zero"_s, path_); },
    };
    writeFile(path_, {});
    for (const auto& put : things) {
        QFile::remove(path_);
        put();
        const CaughtLog log;
        Preferences& defaults = open();
        EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join(u'\n'));
        EXPECT_EQ(defaults.value(kNumber), 2.5F);
        defaults.set(kCount, 4);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(open().value(kCount), 4);
    }
    EXPECT_EQ(readFile(path_ + u".damaged"_s), garbage) << "the second does not take its place";
    EXPECT_EQ(readFile(path_ + u".damaged-2"_s), unfinished);
    // A pipe comes while the program runs, and must not be waited for.
    QFile::remove(path_);
    mkfifo(qPrintable(path_), 0600);
    preferences_->set(kCount, 5);
    EXPECT_EQ(open().value(kCount), 5);
}

TEST_F(PreferencesTest, AFolderThatRefusesIsLogged) {
    const QString folder = QFileInfo(path_).path();
    writeFile(folder, {});
    Preferences defaults(path_);
    defaults.set(kCount, 1);
    const CaughtLog log;
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_TRUE(log.lines().value(0).contains(u"can't be written"));
    EXPECT_EQ(defaults.value(kCount), 1) << "it serves for this run";
    QFile::remove(folder);
    EXPECT_TRUE(defaults.synchronize()) << "once there is room";
    EXPECT_EQ(open().value(kCount), 1);
}
