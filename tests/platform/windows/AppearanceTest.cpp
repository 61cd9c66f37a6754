// SPDX-License-Identifier: MIT
#include "platform/windows/Appearance.h"

#include "tests/TestMain.h"
#include "tests/platform/PrivateBus.h"

#include <QApplication>
#include <QDBusVariant>
#include <QPalette>

#include <gtest/gtest.h>

namespace {

class FakePortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakePortal(const QDBusConnection& connection, uint colorScheme) : bus(connection), value(colorScheme) {
        bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                           QDBusConnection::ExportScriptableContents);
        bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    ~FakePortal() override { bus.unregisterService(u"org.freedesktop.portal.Desktop"_s); }

    void change(const char* key, const QVariant& to, const QString& group = u"org.freedesktop.appearance"_s) {
        Q_EMIT SettingChanged(group, QString::fromLatin1(key), QDBusVariant(to));
    }

public Q_SLOTS:
    Q_SCRIPTABLE QDBusVariant Read(const QString& group, const QString& key) {
        asked.append(group + u' ' + key);
        return QDBusVariant(QVariant::fromValue(QDBusVariant(value)));
    }

Q_SIGNALS:
    Q_SCRIPTABLE void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

public:
    QDBusConnection bus;
    uint value;
    QStringList asked;
};

bool isDark() {
    return QApplication::palette().color(QPalette::Window).lightness() < 100 &&
           QApplication::palette().color(QPalette::WindowText).lightness() > 200;
}

struct AppearanceTest : testing::Test {
    ~AppearanceTest() override { QApplication::setPalette(QPalette()); }
    PrivateBus bus;
    QObject owner;
};

} // namespace

TEST_F(AppearanceTest, FollowsThePortal) {
    const QPalette light = QApplication::palette();
    FakePortal portal(bus.connect(), 1);
    Appearance::followDesktop(&owner, bus.connect());
    ASSERT_TRUE(waitFor([] { return isDark(); }));
    EXPECT_TRUE(portal.asked.contains(u"org.freedesktop.appearance color-scheme"));
    EXPECT_TRUE(portal.asked.contains(u"org.gnome.desktop.interface enable-animations"));
    portal.change("accent-color", 0U);
    portal.change("color-scheme", 2U);
    ASSERT_TRUE(waitFor([] { return !isDark(); }));
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), light.color(QPalette::Window));
    portal.change("color-scheme", 1U);
    EXPECT_TRUE(waitFor([] { return isDark(); }));
    for (const bool animations : {false, true}) {
        portal.change("enable-animations", animations, u"org.gnome.desktop.interface"_s);
        EXPECT_TRUE(waitFor([&] { return Appearance::wantsAnimations() == animations; }));
    }
}

TEST_F(AppearanceTest, WaitsForAPortalAndLeavesOtherColours) {
    Appearance::followDesktop(&owner, bus.connect());
    letPass(50);
    EXPECT_FALSE(isDark()) << "without a portal";
    QPalette ours(Qt::black);
    QApplication::setPalette(ours);
    FakePortal portal(bus.connect(), 1);
    ASSERT_TRUE(waitFor([&] { return !portal.asked.isEmpty(); }));
    letPass(50);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), ours.color(QPalette::Window));
}

#include "AppearanceTest.moc"
