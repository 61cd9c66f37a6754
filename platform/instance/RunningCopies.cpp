// SPDX-License-Identifier: MIT
#include "platform/instance/RunningCopies.h"

#include "platform/log/Log.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <algorithm>
#include <optional>

#include <unistd.h>

namespace {

using RunningCopies::Copy;

constexpr char kDesktopInterface[] = "org.freedesktop.Application";

std::uint32_t ownPid() {
    return static_cast<std::uint32_t>(getpid());
}

QString serviceName(const Copy& copy) {
    return QStringLiteral("%1.pid%2").arg(copy.identifier).arg(copy.pid);
}

/// The copy that a name on the bus tells of, as `serviceName` forms it.
std::optional<Copy> copyOf(const QString& name) {
    const qsizetype dot = name.lastIndexOf(QStringLiteral(".pid"));
    if (dot <= 0 || name.startsWith(u':'))
        return std::nullopt;
    const Copy copy{QStringView(name).mid(dot + 4).toUInt(), name.left(dot)};
    return copy.pid != 0 && name == serviceName(copy) ? std::optional(copy) : std::nullopt;
}

QString objectPath(const QString& identifier) {
    QString path = QLatin1Char('/') + identifier;
    path.replace(QLatin1Char('.'), QLatin1Char('/'));
    for (QChar& c : path) {
        if (c != u'/' && (c.unicode() > 127 || !c.isLetterOrNumber()))
            c = u'_';
    }
    return path;
}

/// The compositor's leave to come to the front, in the one place where Qt looks for it.
class ActivationToken {
public:
    explicit ActivationToken(const QVariantMap& platformData) {
        for (const char* name : {"desktop-startup-id", "activation-token"}) { // the older and the newer name
            const QString token = platformData.value(QLatin1String(name)).toString();
            if (!token.isEmpty())
                qputenv(kVariable, token.toUtf8());
        }
    }
    ~ActivationToken() { qunsetenv(kVariable); }
    ActivationToken(const ActivationToken&) = delete;
    ActivationToken& operator=(const ActivationToken&) = delete;

private:
    static constexpr char kVariable[] = "XDG_ACTIVATION_TOKEN";
};

class Service : public QDBusVirtualObject {
public:
    Service(const QString& identifier, RunningCopies::Requests requests, QObject* owner)
        : QDBusVirtualObject(owner), bus_(QDBusConnection::sessionBus()), identifier_(identifier),
          requests_(std::move(requests)) {}

    bool takeNames() {
        const QDBusConnectionInterface* daemon = bus_.interface();
        connect(daemon, &QDBusConnectionInterface::serviceUnregistered, this, &Service::nameLost);
        connect(daemon, &QDBusConnectionInterface::serviceRegistered, this, &Service::nameTaken);
        bus_.registerVirtualObject(objectPath(identifier_), this);
        // Before others can find this copy, so that whom an older one finds is known to be newer.
        const auto taken =
            bus_.interface()->registerService(identifier_, QDBusConnectionInterface::ReplaceExistingService,
                                              QDBusConnectionInterface::AllowReplacement);
        isNewest_ = taken.value() == QDBusConnectionInterface::ServiceRegistered;
        if (!isNewest_)
            logLine(QStringLiteral("The desktop can't find this copy: the name %1 is not to be had (%2).")
                        .arg(identifier_, taken.error().message()));
        return bus_.registerService(serviceName({ownPid(), identifier_}));
    }

    QString introspect(const QString&) const override {
        return QStringLiteral(R"(  <interface name="%1">
    <method name="Quit"/>
  </interface>
  <interface name="org.freedesktop.Application">
    <method name="Activate">
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="Open">
      <arg name="uris" type="as" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="ActivateAction">
      <arg name="action_name" type="s" direction="in"/>
      <arg name="parameter" type="av" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
  </interface>
)")
            .arg(identifier_);
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        std::optional<QDBusMessage> reply;
        if (message.interface() == identifier_)
            reply = answerCopy(message);
        else if (message.interface() == QLatin1String(kDesktopInterface))
            reply = answerDesktop(message);
        if (!reply)
            return false; // Qt answers that there is no such method
        if (message.isReplyRequired())
            connection.send(*reply);
        return true;
    }

private:
    std::optional<QDBusMessage> answerCopy(const QDBusMessage& message) {
        if (message.member() != u"Quit" || !message.signature().isEmpty())
            return std::nullopt;
        // Two copies that start at the same moment tell each other to quit; the newest stays.
        if (isNewest_)
            return message.createErrorReply(QDBusError::AccessDenied, QStringLiteral("this copy is newer"));
        requests_.quit();
        return message.createReply();
    }

    std::optional<QDBusMessage> answerDesktop(const QDBusMessage& message) {
        const QString call = message.member() + QLatin1Char(' ') + message.signature();
        const QVariantList arguments = message.arguments();
        if (call != u"Activate a{sv}" && call != u"Open asa{sv}" && call != u"ActivateAction sava{sv}")
            return std::nullopt;
        const ActivationToken token(qdbus_cast<QVariantMap>(arguments.constLast()));
        if (arguments.size() < 3)
            requests_.activate(); // there is nothing to open but the program itself
        else if (!requests_.runAction(arguments[0].toString()))
            return message.createErrorReply(QDBusError::Failed, QStringLiteral("no such action"));
        return message.createReply();
    }

    void nameTaken(const QString& name) { isNewest_ = isNewest_ || name == identifier_; }

    void nameLost(const QString& name) {
        if (name != identifier_)
            return;
        isNewest_ = false;
        requests_.quit();
    }

    QDBusConnection bus_;
    QString identifier_;
    RunningCopies::Requests requests_;
    bool isNewest_ = false;
};

} // namespace

std::vector<Copy> RunningCopies::others() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return {};
    std::vector<Copy> copies;
    const QStringList names = bus.interface()->registeredServiceNames();
    for (const QString& name : names) {
        if (const auto copy = copyOf(name); copy && copy->pid != ownPid())
            copies.push_back(*copy);
    }
    std::ranges::sort(copies, {}, &Copy::pid);
    return copies;
}

bool RunningCopies::announce(const QString& identifier, Requests requests, QObject* owner) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        logLine(QStringLiteral("No D-Bus session bus (%1); other copies can't be found.")
                    .arg(bus.lastError().message()));
        return false;
    }
    if ((new Service(identifier, std::move(requests), owner))->takeNames())
        return true;
    logLine(QStringLiteral("Other copies can't find this one (%1).").arg(bus.lastError().message()));
    return false;
}

bool RunningCopies::quit(const Copy& copy) {
    auto message = QDBusMessage::createMethodCall(serviceName(copy), objectPath(copy.identifier),
                                                  copy.identifier, QStringLiteral("Quit"));
    message.setAutoStartService(false);
    return QDBusConnection::sessionBus().send(message);
}
