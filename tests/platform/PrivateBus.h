// SPDX-License-Identifier: MIT
#pragma once

#include "tests/Interaction.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QProcess>

/// A message bus of a test's own, with as many connections as it wants.
class PrivateBus {
public:
    PrivateBus() {
        daemon_.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                      QStringLiteral("--print-address")});
        while (!daemon_.canReadLine() && daemon_.waitForReadyRead(5000)) {
        }
        address_ = QString::fromLatin1(daemon_.readLine().trimmed());
    }

    ~PrivateBus() {
        for (const QString& name : names_)
            QDBusConnection::disconnectFromBus(name);
        daemon_.kill();
        daemon_.waitForFinished();
    }

    Q_DISABLE_COPY(PrivateBus)

    QString address() const { return address_; }

    QDBusConnection connect() {
        static int count = 0;
        names_.append(QStringLiteral("private-bus-%1").arg(++count));
        return QDBusConnection::connectToBus(address_, names_.last());
    }

    static QDBusPendingCall send(const QDBusConnection& from, const QString& service, const QString& path,
                                 const QString& interface, const QString& method,
                                 const QVariantList& arguments = {}) {
        QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
        message.setArguments(arguments);
        return from.asyncCall(message);
    }

    /// Waits for the answer without blocking the object called, which may live in this thread as well.
    static QDBusMessage call(const QDBusConnection& from, const QString& service, const QString& path,
                             const QString& interface, const QString& method,
                             const QVariantList& arguments = {}) {
        const QDBusPendingCallWatcher answer(send(from, service, path, interface, method, arguments));
        waitFor([&answer] { return answer.isFinished(); });
        return answer.reply();
    }

private:
    QProcess daemon_;
    QString address_;
    QStringList names_;
};

/// Lets whatever is on its way on `bus` arrive.
inline void settle(const QDBusConnection& bus) {
    for (int round = 0; round < 3; ++round) {
        PrivateBus::call(bus, QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
                         QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
        QCoreApplication::processEvents();
    }
}
