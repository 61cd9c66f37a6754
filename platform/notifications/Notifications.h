// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QSet>
#include <QString>

#include <functional>

class QDBusMessage;

/// Notifications that the desktop shows, `org.freedesktop.Notifications` on the session bus. No call waits
/// for another program.
class Notifications : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Has the desktop show a notification with `title` and `body`, both plain text, and `image`, unless that
    /// is empty. A click on its button, called `button`, and on most desktops on any other part of it, emits
    /// `activated`; a desktop without buttons shows it without. What nobody shows is logged, and not sent
    /// again.
    void send(const QString& title, const QString& body, const QImage& image, const QString& button);

Q_SIGNALS:
    /// The user wants to see what a notification, one of this object's, is about.
    void activated();

private Q_SLOTS:
    void heard(const QDBusMessage& signal);

private:
    void listen();
    void call(const QString& method, const QVariantList& arguments,
              const std::function<void(const QDBusMessage& reply)>& answered);

    /// The server's numbers of those that were sent.
    QSet<uint> sent_;
    bool listens_ = false;
};
