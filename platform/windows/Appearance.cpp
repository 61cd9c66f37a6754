// SPDX-License-Identifier: MIT
#include "platform/windows/Appearance.h"

#include "platform/windows/SwayPlacement.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QPalette>

namespace {

constexpr auto kPortal = QLatin1String("org.freedesktop.portal.Desktop");
constexpr auto kPortalPath = QLatin1String("/org/freedesktop/portal/desktop");
constexpr auto kSettings = QLatin1String("org.freedesktop.portal.Settings");
constexpr uint kPrefersDark = 1;

struct Setting {
    QLatin1String group;
    QLatin1String key;
};
constexpr Setting kColorScheme{QLatin1String("org.freedesktop.appearance"), QLatin1String("color-scheme")};
constexpr Setting kAnimations{QLatin1String("org.gnome.desktop.interface"),
                              QLatin1String("enable-animations")};

bool hasAnimations = true;

QPalette darkPalette() {
    const QColor window(0x2d, 0x2d, 0x30);
    const QColor text(0xee, 0xee, 0xee);
    const QColor faint(0x8a, 0x8a, 0x8d);
    QPalette palette(QColor(0x3a, 0x3a, 0x3d), window); // the shades between follow from these two
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::HighlightedText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Base, QColor(0x1f, 0x1f, 0x21));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x29));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3a, 0x3d));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x76, 0xc6));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x50, 0x50, 0x55));
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xf5));
    palette.setColor(QPalette::LinkVisited, QColor(0xc0, 0x9a, 0xe8));
    return palette;
}

bool isLight(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() > 127;
}

class Follower : public QObject {
    Q_OBJECT

public:
    Follower(QObject* owner, const QDBusConnection& bus);

private Q_SLOTS:
    void settingChanged(const QDBusMessage& change);

private:
    void ask();
    void follow(const Setting& setting, QVariant value);

    QDBusConnection bus_;
    bool isDark_ = false; ///< by this class
};

Follower::Follower(QObject* owner, const QDBusConnection& bus) : QObject(owner), bus_(bus) {
    // Without a sender's name, which QtDBus would look up here and now.
    bus_.connect({}, kPortalPath, kSettings, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QDBusMessage)));
    const auto* const portal =
        new QDBusServiceWatcher(kPortal, bus_, QDBusServiceWatcher::WatchForRegistration, this);
    connect(portal, &QDBusServiceWatcher::serviceRegistered, this, &Follower::ask);
    ask();
}

void Follower::ask() {
    for (const Setting& setting : {kColorScheme, kAnimations}) {
        QDBusMessage question =
            QDBusMessage::createMethodCall(kPortal, kPortalPath, kSettings, QStringLiteral("Read"));
        question.setArguments({setting.group, setting.key});
        // A session that has started no portal has no use for one on our account.
        question.setAutoStartService(false);
        auto* const answer = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, setting, answer] {
            answer->deleteLater();
            if (const QDBusPendingReply<QDBusVariant> reply = *answer; reply.isValid())
                follow(setting, reply.value().variant());
        });
    }
}

void Follower::settingChanged(const QDBusMessage& change) {
    const QVariantList arguments = change.arguments();
    for (const Setting& setting : {kColorScheme, kAnimations}) {
        if (arguments.size() == 3 && arguments[0] == setting.group && arguments[1] == setting.key)
            follow(setting, arguments[2]);
    }
}

void Follower::follow(const Setting& setting, QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) // an answer has one more around it
        value = value.value<QDBusVariant>().variant();
    if (setting.key == kAnimations.key) {
        hasAnimations = value.toBool();
        return;
    }
    const bool wantsDark = value.toUInt() == kPrefersDark;
    if (wantsDark == isDark_ || (wantsDark && !isLight(QApplication::palette())))
        return;
    isDark_ = wantsDark;
    QApplication::setPalette(wantsDark ? darkPalette() : QPalette());
}

} // namespace

void Appearance::followDesktop(QObject* owner, const QDBusConnection& bus) {
    new Follower(owner, bus);
}

bool Appearance::wantsAnimations() {
    // Sway answers a size with another place, and both cross on their way: many in a row end anywhere.
    return hasAnimations && !SwayPlacement::isThere();
}

#include "Appearance.moc"
