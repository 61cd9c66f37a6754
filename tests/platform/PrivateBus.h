// SPDX-License-Identifier: MIT
#pragma once

#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVirtualObject>
#include <QProcess>

/// A message bus of a test's own, with as many connections as it wants.
class PrivateBus {
public:
    PrivateBus() {
        daemon_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
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
        names_.append(u"private-bus-%1"_s.arg(++count));
        return QDBusConnection::connectToBus(address_, names_.last());
    }

    static QDBusPendingCall send(const QDBusConnection& from, const QString& service, const QString& path,
                                 const QString& interface, const char* method,
                                 const QVariantList& arguments = {}) {
        auto message = QDBusMessage::createMethodCall(service, path, interface, QLatin1String(method));
        message.setArguments(arguments);
        return from.asyncCall(message);
    }

    /// Waits for the answer without blocking the object called, which may live in this thread as well.
    static QDBusMessage call(const QDBusConnection& from, const QString& service, const QString& path,
                             const QString& interface, const char* method,
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

/// Takes every call and answers none by itself.
class SilentObject : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
        asked.append(message);
        return true;
    }
    QList<QDBusMessage> asked;
};

/// Lets whatever is on its way on `bus` arrive.
inline void settle(const QDBusConnection& bus) {
    for (int round = 0; round < 3; ++round) {
        PrivateBus::call(bus, u"org.freedesktop.DBus"_s, u"/"_s, u"org.freedesktop.DBus.Peer"_s, "Ping");
        QCoreApplication::processEvents();
    }
}
