// SPDX-License-Identifier: MIT
#include "platform/carbon/ProcessService.h"

#include "platform/foundation/NSLog.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <algorithm>
#include <limits>
#include <optional>

#include <unistd.h>

namespace {

constexpr OSStatus connectionInvalid = -609;

QString serviceName(const QString& bundleIdentifier, std::uint32_t pid) {
    return QStringLiteral("%1.pid%2").arg(bundleIdentifier).arg(pid);
}

QString objectPath(const QString& bundleIdentifier) {
    QString path = QLatin1Char('/') + bundleIdentifier;
    path.replace(QLatin1Char('.'), QLatin1Char('/'));
    for (QChar& c : path) {
        if (c != u'/' && (c.unicode() > 127 || !c.isLetterOrNumber()))
            c = u'_';
    }
    return path;
}

QString eventInterface(const QString& bundleIdentifier) {
    return bundleIdentifier + QStringLiteral(".AppleEvents");
}

constexpr char kDesktopInterface[] = "org.freedesktop.Application";

AppleEvent coreEvent(AEEventID eventID) {
    AppleEvent event;
    AECreateAppleEvent(kCoreEventClass, eventID, {}, kAutoGenerateReturnID, kAnyTransactionID, &event);
    return event;
}

AEDesc textDesc(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    AEDesc desc;
    AECreateDesc(typeUTF8Text, bytes.constData(), static_cast<std::size_t>(bytes.size()), &desc);
    return desc;
}

AppleEvent openEvent(const QStringList& addresses) {
    AEDesc list;
    AECreateList(false, &list);
    for (const QString& address : addresses)
        AEPutDesc(&list, textDesc(address));
    AppleEvent event = coreEvent(kAEOpenDocuments);
    AEPutParamDesc(&event, keyDirectObject, list);
    return event;
}

AppleEvent actionEvent(const QString& name) {
    AppleEvent event = coreEvent(kAEActivateAction);
    AEPutParamDesc(&event, keyDirectObject, textDesc(name));
    return event;
}

/// The compositor's leave to come to the front, in the one place where Qt looks for it.
class ActivationToken {
public:
    explicit ActivationToken(const QVariantMap& platformData) {
        const QString token = platformData.value(QStringLiteral("activation-token")).toString();
        if (!token.isEmpty())
            qputenv(kVariable, token.toUtf8());
    }
    ~ActivationToken() { qunsetenv(kVariable); }
    ActivationToken(const ActivationToken&) = delete;
    ActivationToken& operator=(const ActivationToken&) = delete;

private:
    static constexpr char kVariable[] = "XDG_ACTIVATION_TOKEN";
};

class Service : public QDBusVirtualObject {
public:
    Service(QDBusConnection bus, const QString& bundleIdentifier)
        : QDBusVirtualObject(QCoreApplication::instance()), bus_(std::move(bus)),
          identifier_(bundleIdentifier) {}

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
            NSLog(QStringLiteral("The desktop can't find this copy: the name %1 is not to be had (%2).")
                      .arg(identifier_, taken.error().message()));
        return bus_.registerService(serviceName(identifier_, static_cast<std::uint32_t>(getpid())));
    }

    QString introspect(const QString&) const override {
        return QStringLiteral(R"(  <interface name="%1">
    <method name="HandleEvent">
      <arg name="event" type="ay" direction="in"/>
      <arg name="reply" type="ay" direction="out"/>
    </method>
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
            .arg(eventInterface(identifier_));
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        std::optional<QDBusMessage> reply;
        if (message.interface() == eventInterface(identifier_) && message.member() == u"HandleEvent" &&
            message.signature() == u"ay")
            reply = handleEvent(message);
        else if (message.interface() == QLatin1String(kDesktopInterface))
            reply = handleDesktop(message);
        if (!reply)
            return false; // Qt answers that there is no such method
        if (message.isReplyRequired())
            connection.send(*reply);
        return true;
    }

private:
    QDBusMessage handleEvent(const QDBusMessage& message) {
        AppleEvent event;
        if (AEUnflattenDesc(message.arguments().constFirst().toByteArray(), &event) != noErr ||
            event.form != AEDesc::Form::event) {
            NSLog(QStringLiteral("An event from %1 can't be read.").arg(message.service()));
            return message.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("no event"));
        }
        AppleEvent reply = coreEvent(kAEAnswer);
        const bool refused = isNewest_ && isQuit(event) && comesFromCopy(event);
        const OSStatus err = refused ? errAEEventNotHandled : AEProcessAppleEvent(event, &reply);
        if (err != noErr)
            AEPutParamPtr(&reply, keyErrorNumber, typeSInt32, &err, sizeof err);
        QByteArray bytes;
        AEFlattenDesc(reply, &bytes);
        return message.createReply(bytes);
    }

    std::optional<QDBusMessage> handleDesktop(const QDBusMessage& message) {
        const QString call = message.member() + QLatin1Char(' ') + message.signature();
        const QVariantList arguments = message.arguments();
        AppleEvent event;
        if (call == u"Activate a{sv}")
            event = coreEvent(kAEReopenApplication);
        else if (call == u"Open asa{sv}")
            event = openEvent(arguments[0].toStringList());
        else if (call == u"ActivateAction sava{sv}")
            event = actionEvent(arguments[0].toString());
        else
            return std::nullopt;
        const ActivationToken token(qdbus_cast<QVariantMap>(arguments.constLast()));
        AppleEvent reply = coreEvent(kAEAnswer);
        if (const OSStatus err = AEProcessAppleEvent(event, &reply); err != noErr)
            return message.createErrorReply(QDBusError::Failed, QStringLiteral("status %1").arg(err));
        return message.createReply();
    }

    static bool isQuit(const AppleEvent& event) {
        return eventClassOf(event) == kCoreEventClass && eventIDOf(event) == kAEQuitApplication;
    }

    /// Two copies that start at the same moment tell each other to quit; the newest stays.
    static bool comesFromCopy(const AppleEvent& event) {
        AEDesc sender;
        return AEGetAttributeDesc(event, keyOriginalAddressAttr, typeWildCard, &sender) == noErr;
    }

    void nameTaken(const QString& name) { isNewest_ = isNewest_ || name == identifier_; }

    void nameLost(const QString& name) {
        if (name != identifier_)
            return;
        isNewest_ = false;
        AppleEvent reply = coreEvent(kAEAnswer);
        AEProcessAppleEvent(coreEvent(kAEQuitApplication), &reply);
    }

    QDBusConnection bus_;
    QString identifier_;
    bool isNewest_ = false;
};

/// What this process has announced itself as.
QString& ownIdentifier() {
    static QString identifier;
    return identifier;
}

/// The event as it goes to another copy of this program, or as it is to another program.
AppleEvent signedFor(const QString& bundleIdentifier, const AppleEvent& event) {
    AppleEvent result = event;
    ProcessSerialNumber self;
    if (bundleIdentifier != ownIdentifier() || GetCurrentProcess(&self) != noErr)
        return result;
    AEDesc sender;
    AECreateDesc(typeProcessSerialNumber, &self, sizeof self, &sender);
    AEPutAttributeDesc(&result, keyOriginalAddressAttr, sender);
    return result;
}

OSStatus statusOf(const QDBusMessage& answer) {
    switch (QDBusError(answer).type()) {
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return errAETimeout;
    case QDBusError::ServiceUnknown:
        return procNotFound;
    default:
        return connectionInvalid;
    }
}

/// The copy that a name on the bus announces, as serviceName forms it.
std::optional<ProcessService::Copy> announcedCopy(const QString& name) {
    const qsizetype dot = name.lastIndexOf(QStringLiteral(".pid"));
    if (dot <= 0 || name.startsWith(u':'))
        return std::nullopt;
    const QString identifier = name.left(dot);
    const std::uint32_t pid = QStringView(name).mid(dot + 4).toUInt();
    return pid != 0 && name == serviceName(identifier, pid)
               ? std::optional(ProcessService::Copy{pid, identifier})
               : std::nullopt;
}

int milliseconds(long ticks) {
    if (ticks < 0)
        return -1;
    return static_cast<int>(std::min<long>(ticks, std::numeric_limits<int>::max() / 17) * 1000 / 60);
}

} // namespace

std::vector<ProcessService::Copy> ProcessService::announcedCopies() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return {};
    std::vector<Copy> copies;
    const QStringList names = bus.interface()->registeredServiceNames();
    for (const QString& name : names) {
        if (const auto copy = announcedCopy(name))
            copies.push_back(*copy);
    }
    return copies;
}

bool ProcessService::announce(const QString& bundleIdentifier) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        NSLog(QStringLiteral("No D-Bus session bus (%1); other copies can't be found.")
                  .arg(bus.lastError().message()));
        return false;
    }
    auto* service = new Service(bus, bundleIdentifier); // the application's
    ownIdentifier() = bundleIdentifier;
    if (service->takeNames())
        return true;
    NSLog(QStringLiteral("Other copies can't find this one (%1).").arg(bus.lastError().message()));
    return false;
}

OSStatus ProcessService::send(const AppleEvent& event, const ProcessSerialNumber& target, AppleEvent* reply,
                              long timeOutInTicks) {
    const auto copies = announcedCopies();
    const auto copy = std::ranges::find_if(copies, [&](const Copy& each) {
        return target == ProcessSerialNumber{0, each.pid};
    });
    if (copy == copies.end())
        return procNotFound;
    QByteArray bytes;
    if (const OSStatus err = AEFlattenDesc(signedFor(copy->bundleIdentifier, event), &bytes); err != noErr)
        return err;
    auto message = QDBusMessage::createMethodCall(
        serviceName(copy->bundleIdentifier, copy->pid), objectPath(copy->bundleIdentifier),
        eventInterface(copy->bundleIdentifier), QStringLiteral("HandleEvent"));
    message.setAutoStartService(false);
    message << bytes;

    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!reply)
        return bus.send(message) ? noErr : connectionInvalid;
    const QDBusMessage answer = bus.call(message, QDBus::Block, milliseconds(timeOutInTicks));
    if (answer.type() != QDBusMessage::ReplyMessage)
        return statusOf(answer);
    if (answer.signature() != u"ay")
        return errAECorruptData;
    return AEUnflattenDesc(answer.arguments().constFirst().toByteArray(), reply);
}
