// SPDX-License-Identifier: MIT
#include "platform/notifications/Notifications.h"

#include "platform/log/Log.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace {

constexpr auto kService = QLatin1String("org.freedesktop.Notifications");
constexpr auto kPath = QLatin1String("/org/freedesktop/Notifications");
constexpr auto kActionInvoked = QLatin1String("ActionInvoked");
constexpr auto kActivationToken = QLatin1String("ActivationToken");

/// A picture as servers take it, `(iiibiiay)`: width, height, bytes in a row, whether it has alpha, bits in a
/// sample, samples in a pixel, and rows of R, G, B, A.
QVariant imageData(const QImage& image) {
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    QDBusArgument data;
    data.beginStructure();
    data << pixels.width() << pixels.height() << static_cast<int>(pixels.bytesPerLine()) << true << 8 << 4
         << QByteArray(reinterpret_cast<const char*>(pixels.constBits()), pixels.sizeInBytes());
    data.endStructure();
    return QVariant::fromValue(data);
}

} // namespace

void Notifications::send(const QString& title, const QString& body, const QImage& image,
                         const QString& button) {
    listen();
    call(QStringLiteral("GetCapabilities"), {}, [=, this](const QDBusMessage& answer) {
        const QStringList capabilities = answer.arguments().value(0).toStringList();
        QStringList actions;
        // Some servers make a button of a click's action too, if that has a name.
        if (capabilities.contains(u"actions"))
            actions = {QStringLiteral("default"), QString(), QStringLiteral("show"), button};
        const QString application = QGuiApplication::desktopFileName();
        QVariantMap hints{{QStringLiteral("desktop-entry"), application}};
        if (!image.isNull())
            hints.insert(QStringLiteral("image-data"), imageData(image));
        constexpr uint kReplacesNone = 0;
        constexpr int kServersOwnTime = -1;
        call(QStringLiteral("Notify"),
             {QCoreApplication::applicationName(), kReplacesNone, application, title,
              capabilities.contains(u"body-markup") ? body.toHtmlEscaped() : body, actions, hints,
              kServersOwnTime},
             [this](const QDBusMessage& reply) { sent_.insert(reply.arguments().value(0).toUInt()); });
    });
}

void Notifications::listen() {
    if (std::exchange(listens_, true))
        return;
    // Without a sender's name, which QtDBus would look up here and now.
    QDBusConnection bus = QDBusConnection::sessionBus();
    for (const auto& signal : {kActivationToken, kActionInvoked})
        bus.connect({}, kPath, kService, signal, this, SLOT(heard(QDBusMessage)));
    // A server that starts anew counts anew.
    const auto* const watcher =
        new QDBusServiceWatcher(kService, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] { sent_.clear(); });
}

void Notifications::call(const QString& method, const QVariantList& arguments,
                         const std::function<void(const QDBusMessage& reply)>& answered) {
    QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, kService, method);
    message.setArguments(arguments);
    auto* const call = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [call, answered] {
        call->deleteLater();
        if (call->isError())
            logLine(QStringLiteral("The desktop shows no notification: %1").arg(call->error().message()));
        else
            answered(call->reply());
    });
}

void Notifications::heard(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (!sent_.contains(arguments.value(0).toUInt()))
        return;
    if (signal.member() == kActionInvoked)
        Q_EMIT activated();
    else // Qt's Wayland plugin takes it from here when a window is next activated
        qputenv("XDG_ACTIVATION_TOKEN", arguments.value(1).toString().toUtf8());
}
