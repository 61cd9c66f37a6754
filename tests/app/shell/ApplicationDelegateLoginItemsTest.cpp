// SPDX-License-Identifier: MIT
#include "app/shell/ApplicationDelegate.h"

#include "platform/carbon/Agents.h"
#include "platform/carbon/SystemEvents.h"
#include "platform/foundation/NSBundle.h"
#include "tests/platform/carbon/TestAutostart.h"

namespace {

class DelegateLoginItems : public TestAutostart {
protected:
    DelegateLoginItems() { Agents::install(kSystemEventsSignature, systemEventsAgent()); }
    ~DelegateLoginItems() override { Agents::install(kSystemEventsSignature, systemEventsAgent()); }

    QUrl add(const QString& name) const {
        const QString program = makeProgram(name);
        AutostartFolder::append(program, false);
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
    EXPECT_FALSE(AutostartFolder::items().constLast().hidden);
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
    EXPECT_EQ(paths(), QStringList{NSBundle::mainBundle().bundlePath()});
    EXPECT_TRUE(delegate_.alreadySetToStartup(std::nullopt));
    delegate_.toggleSetToStartup(std::nullopt);
    EXPECT_FALSE(delegate_.alreadySetToStartup(std::nullopt));
}

TEST_F(DelegateLoginItems, WithoutAListNothingIsSet) {
    Agents::install(kSystemEventsSignature, [](const AppleEvent&, AppleEvent*) { return OSStatus(-34); });
    const CaughtLog log;
    EXPECT_EQ(delegate_.allLoginItems(), std::nullopt);
    EXPECT_FALSE(delegate_.alreadySetToStartup(std::nullopt));
    delegate_.removeOldStartupItemsContaining(QStringLiteral("Lumivane"));
    EXPECT_EQ(log.lines(), QStringList(3, QStringLiteral("Can't get login items list from system (-34).")));
}
