// SPDX-License-Identifier: MIT
#include "shared/utilities/libraries/LoginItemsAE/LoginItemsAE.h"

#include "tests/platform/autostart/TestAutostart.h"

#include <limits>

namespace {

class LoginItemsAE : public TestAutostart {
protected:
    static QList<QVariantMap> list() {
        std::unique_ptr<LoginItemsList> items;
        EXPECT_EQ(LIAECopyLoginItems(&items), kLIAENoError);
        return items ? *items : QList<QVariantMap>();
    }
};

} // namespace

TEST_F(LoginItemsAE, ListAppendAndRemoveAreWhatTheFolderHolds) {
    const QByteArray foreign = "[Desktop Entry]\nType=Application\nExec=/usr/bin/env -i\nName=Env\n";
    writeEntry(QStringLiteral("zz.desktop"), foreign);
    const QUrl first = QUrl::fromLocalFile(makeProgram(QStringLiteral("b first #1 %f")));
    const QUrl second = QUrl::fromLocalFile(makeProgram(QStringLiteral("a second")));
    EXPECT_EQ(LIAEAddURLAtEnd(&first, false), kLIAENoError);
    EXPECT_EQ(LIAEAddURLAtEnd(&second, true), kLIAENoError);
    const auto item = [](const QUrl& url, bool hidden) {
        return QVariantMap{{QStringLiteral("URL"), url}, {QStringLiteral("Hidden"), hidden}};
    };
    const QUrl env = QUrl::fromLocalFile(QStringLiteral("/usr/bin/env"));
    EXPECT_EQ(list(), (QList{item(env, false), item(first, false), item(second, true)}));

    EXPECT_EQ(LIAERemove(1), kLIAENoError);
    EXPECT_EQ(files(), (QStringList{QStringLiteral("a_second.desktop"), QStringLiteral("zz.desktop")}));
    for (const long position : {2L, std::numeric_limits<long>::max()})
        EXPECT_EQ(LIAERemove(position), kLIAEFileNotFound);

    // Between list and removal another program puts an entry first: positions mean what was shown.
    list();
    writeEntry(QStringLiteral("aa.desktop"), foreign);
    EXPECT_EQ(LIAERemove(0), kLIAENoError);
    EXPECT_EQ(files(), (QStringList{QStringLiteral("a_second.desktop"), QStringLiteral("aa.desktop")}));
    list();
    writeEntry(QStringLiteral("aa.desktop"), "[Desktop Entry]\nType=Application\nExec=/bin/other\n");
    EXPECT_EQ(LIAERemove(0), kLIAEFileNotFound);
    EXPECT_EQ(files().size(), 2);
}

TEST_F(LoginItemsAE, RefusesWhatIsNoFile) {
    for (const QUrl& url : {QUrl::fromLocalFile(path(QStringLiteral("gone"))),
                            QUrl(QStringLiteral("https://example.org/")), QUrl()})
        EXPECT_EQ(LIAEAddURLAtEnd(&url, false), kLIAEFileNotFound) << url.toString().toStdString();
    const QUrl program = QUrl::fromLocalFile(makeProgram(QStringLiteral("Moon")));
    const WithEnvironment config("XDG_CONFIG_HOME", program.toLocalFile().toUtf8());
    EXPECT_EQ(LIAEAddURLAtEnd(&program, false), kLIAEFileNotFound) << "a file where the folder should be";
    EXPECT_TRUE(list().isEmpty());
}

TEST(LoginItemsAEDeathTest, PreconditionsAreFatal) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH(LIAECopyLoginItems(nullptr), "LIAECopyLoginItems: LoginItemsAE: .*: itemsPtr != NULL");
    auto taken = std::make_unique<LoginItemsList>();
    EXPECT_DEATH(LIAECopyLoginItems(&taken), "LIAECopyLoginItems: LoginItemsAE: .*: \\*itemsPtr == NULL");
    EXPECT_DEATH(LIAEAddRefAtEnd(nullptr, false), "LIAEAddRefAtEnd: LoginItemsAE: .*: item != NULL");
    EXPECT_DEATH(LIAEAddURLAtEnd(nullptr, false), "LIAEAddURLAtEnd: LoginItemsAE: .*: item != NULL");
    EXPECT_DEATH(LIAERemove(-1), "LIAERemove: LoginItemsAE: .*: itemIndex >= 0");
}
