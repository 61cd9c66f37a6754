// SPDX-License-Identifier: MIT
#include "shared/utilities/libraries/LoginItemsAE/LoginItemsAE.h"

#include "tests/platform/autostart/TestAutostart.h"

#include <limits>

namespace {
class LoginItemsAE : public TestAutostart {};

/// Path and "hidden" of each item.
QList<std::pair<QString, bool>> list() {
    std::unique_ptr<LoginItemsList> items;
    EXPECT_EQ(LIAECopyLoginItems(&items), kLIAENoError);
    QList<std::pair<QString, bool>> result;
    for (const QVariantMap& item : *items)
        result.append({item[u"URL"_s].toUrl().toLocalFile(), item[u"Hidden"_s].toBool()});
    return result;
}
} // namespace

TEST_F(LoginItemsAE, ListAppendAndRemoveAreWhatTheFolderHolds) {
    const QByteArray foreign = "[Desktop Entry]\nType=Application\nExec=/usr/bin/env -i\nName=Env\n";
    writeEntry(u"zz.desktop"_s, foreign);
    const QUrl first = QUrl::fromLocalFile(makeProgram(u"b first #1 %f"_s));
    const QUrl second = QUrl::fromLocalFile(makeProgram(u"a second"_s));
    EXPECT_EQ(LIAEAddURLAtEnd(&first, false), kLIAENoError);
    EXPECT_EQ(LIAEAddURLAtEnd(&second, true), kLIAENoError);
    const std::pair env{u"/usr/bin/env"_s, false};
    EXPECT_EQ(list(), (QList{env, {first.toLocalFile(), false}, {second.toLocalFile(), true}}));
    EXPECT_EQ(LIAERemove(1), kLIAENoError);
    for (const long position : {2L, std::numeric_limits<long>::max()})
        EXPECT_EQ(LIAERemove(position), kLIAEFileNotFound);
    // Between list and removal another program puts an entry first: positions mean what was shown.
    EXPECT_EQ(list(), (QList{env, {second.toLocalFile(), true}}));
    writeEntry(u"aa.desktop"_s, foreign);
    EXPECT_EQ(LIAERemove(0), kLIAENoError);
    EXPECT_EQ(files(), (QStringList{u"a_second.desktop"_s, u"aa.desktop"_s}));
    list();
    writeEntry(u"aa.desktop"_s, "[Desktop Entry]\nType=Application\nExec=/bin/other\n");
    EXPECT_EQ(LIAERemove(0), kLIAEFileNotFound);
    for (const QUrl& url : {QUrl::fromLocalFile(path(u"gone"_s)), QUrl(u"https://example.org/"_s), QUrl()})
        EXPECT_EQ(LIAEAddURLAtEnd(&url, false), kLIAEFileNotFound) << url.toString().toStdString();
}

TEST(LoginItemsAEDeathTest, PreconditionsAreFatal) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    auto taken = std::make_unique<LoginItemsList>();
    EXPECT_DEATH(LIAECopyLoginItems(&taken), "LIAECopyLoginItems: LoginItemsAE: .*: \\*itemsPtr == NULL");
    EXPECT_DEATH(LIAEAddURLAtEnd(nullptr, false), "LIAEAddURLAtEnd: LoginItemsAE: .*: item != NULL");
    EXPECT_DEATH(LIAERemove(-1), "LIAERemove: LoginItemsAE: .*: itemIndex >= 0");
}
