// SPDX-License-Identifier: MIT
#include "platform/windows/Appearance.h"

#include "tests/platform/PrivateBus.h"

#include <QDBusVariant>
#include <QPalette>

namespace {

const QString kPath = u"/org/freedesktop/portal/desktop"_s;
const QString kName = u"org.freedesktop.portal.Desktop"_s;
const QString kColours = u"org.freedesktop.appearance"_s;

/// A portal that answers every question with one number.
class FakePortal : public QDBusVirtualObject {
public:
    FakePortal(const QDBusConnection& connection, uint answer) : bus(connection), value(answer) {
        bus.registerVirtualObject(kPath, this);
        bus.registerService(kName);
    }
    ~FakePortal() override { bus.unregisterService(kName); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        asked.append(message.arguments()[0].toString() + u' ' + message.arguments()[1].toString());
        const auto answer = QVariant::fromValue(QDBusVariant(value));
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(answer))));
    }

    void change(const QString& group, const QString& key, const QVariant& to) {
        auto signal =
            QDBusMessage::createSignal(kPath, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        bus.send(signal << group << key << QVariant::fromValue(QDBusVariant(to)));
    }

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
    portal.change(kColours, u"accent-color"_s, 0U);
    portal.change(kColours, u"color-scheme"_s, 2U);
    ASSERT_TRUE(waitFor([] { return !isDark(); }));
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), light.color(QPalette::Window));
    for (const bool animations : {false, true}) {
        portal.change(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, animations);
        EXPECT_TRUE(waitFor([&] { return Appearance::wantsAnimations() == animations; }));
    }
}

TEST_F(AppearanceTest, WaitsForAPortalAndLeavesOtherColours) {
    Appearance::followDesktop(&owner, bus.connect());
    QPalette ours(Qt::black);
    QApplication::setPalette(ours);
    FakePortal portal(bus.connect(), 1);
    ASSERT_TRUE(waitFor([&] { return !portal.asked.isEmpty(); }));
    letPass(50);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), ours.color(QPalette::Window));
}
