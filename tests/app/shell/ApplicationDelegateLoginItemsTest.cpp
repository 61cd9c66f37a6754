// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "platform/bundle/Bundle.h"
#include "tests/platform/autostart/TestAutostart.h"

namespace {

class DelegateLoginItems : public TestAutostart {
protected:
    QUrl add(const QString& name) const {
        const QString program = makeProgram(name);
        Autostart::append(program, false);
        return QUrl::fromLocalFile(program);
    }

    ApplicationDelegate delegate_;
};

} // namespace

TEST_F(DelegateLoginItems, SwitchingOnClearsOlderCopiesAway) {
    const QUrl older = add(QStringLiteral("old/LUMIVANE 0.9"));
    const QUrl other = add(QStringLiteral("other"));
    const QUrl beta = add(QStringLiteral("lumivane beta/run"));
    const QUrl self = QUrl::fromLocalFile(makeProgram(QStringLiteral("Lumivane")));
    EXPECT_TRUE(delegate_.alreadySetToStartup(older));
    EXPECT_FALSE(delegate_.alreadySetToStartup(self));
    EXPECT_FALSE(delegate_.alreadySetToStartup(QUrl(older.toString().toLower()))) << "no case folding";

    const CaughtLog log;
    delegate_.toggleSetToStartup(self);
    EXPECT_EQ(paths(), (QStringList{other.toLocalFile(), self.toLocalFile()}));
    EXPECT_EQ(log.lines(),
              (QStringList{QStringLiteral("Removed %1 from the login items.").arg(beta.toLocalFile()),
                           QStringLiteral("Removed %1 from the login items.").arg(older.toLocalFile())}));
    EXPECT_FALSE(Autostart::items().constLast().hidden);
    delegate_.toggleSetToStartup(self);
    EXPECT_EQ(paths(), QStringList{other.toLocalFile()});
}

TEST_F(DelegateLoginItems, AProgramOfAnotherNameStaysWhenSwitchedOff) {
    const QUrl self = QUrl::fromLocalFile(makeProgram(QStringLiteral("Moon")));
    delegate_.toggleSetToStartup(self);
    EXPECT_TRUE(delegate_.alreadySetToStartup(self));
    delegate_.toggleSetToStartup(self);
    EXPECT_TRUE(delegate_.alreadySetToStartup(self));
}

TEST_F(DelegateLoginItems, TheApplicationItselfIsMeantByNothing) {
    delegate_.toggleSetToStartup(std::nullopt);
    EXPECT_EQ(paths(), QStringList{Bundle::main().bundlePath()});
    EXPECT_TRUE(delegate_.alreadySetToStartup(std::nullopt));
    delegate_.toggleSetToStartup(std::nullopt);
    EXPECT_FALSE(delegate_.alreadySetToStartup(std::nullopt));
}
