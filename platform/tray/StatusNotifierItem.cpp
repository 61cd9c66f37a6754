// SPDX-License-Identifier: MIT
#include "platform/tray/StatusNotifierItem.h"

#include "platform/log/Log.h"

#include <QCursor>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QScreen>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr auto kWatcher = QLatin1String("org.kde.StatusNotifierWatcher");
constexpr auto kWatcherPath = QLatin1String("/StatusNotifierWatcher");
constexpr auto kItemPath = QLatin1String("/StatusNotifierItem");
constexpr auto kMenuPath = QLatin1String("/StatusNotifierItem/Menu");
constexpr auto kProperties = QLatin1String("org.freedesktop.DBus.Properties");

DBusImage dbusImage(const QImage& image) {
    const QImage straight = image.convertToFormat(QImage::Format_ARGB32);
    QByteArray pixels(straight.sizeInBytes(), Qt::Uninitialized);
    qToBigEndian<quint32>(straight.constBits(), straight.sizeInBytes() / 4, pixels.data());
    return {straight.width(), straight.height(), pixels};
}

bool isOnScreen(QPoint point) {
    return QGuiApplication::screenAt(point) != nullptr;
}

/// On X11 the pointer's place is known everywhere, under Wayland (XWayland too) over our own windows only.
bool isPointerKnown() {
    return QGuiApplication::platformName() == u"xcb" && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

/// The place in Qt's coordinates that X11's `native` pixels are at; `native` itself where that is on no
/// screen.
QPoint fromNativePixels(QPoint native) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QRect area = screen->geometry();
        const qreal scale = screen->devicePixelRatio();
        if (QRect(area.topLeft(), area.size() * scale).contains(native))
            return area.topLeft() + (native - area.topLeft()) / scale;
    }
    return native;
}

/// Whether a host's numbers can mean the pointer's place. They are native pixels, or those divided by a whole
/// number, or Qt's coordinates, after the host's toolkit and its settings.
bool canMean(QPoint told, QPoint pointer) {
    const auto isNear = [pointer](QPoint place) { return (place - pointer).manhattanLength() <= 48; };
    return isNear(told) || std::ranges::any_of(std::array{1, 2, 3}, [&](int scale) {
               return isNear(fromNativePixels(told * scale));
           });
}

/// Where a click was, as far as it can be known. The pointer's own place is exact, unless the click came from
/// elsewhere (the keyboard); some hosts tell nothing of use.
std::optional<QPoint> placeOfClick(QPoint told) {
    if (isPointerKnown()) {
        const QPoint pointer = QCursor::pos();
        const QPoint place = fromNativePixels(told);
        return told.isNull() || !isOnScreen(place) || canMean(told, pointer) ? pointer : place;
    }
    return told.isNull() || !isOnScreen(told) ? std::nullopt : std::optional(told);
}

/// Whether the watcher's answer says that a host is there. Who has a watcher that lacks the question has a
/// host as well.
bool tellsOfHost(const QDBusPendingReply<QDBusVariant>& answer) {
    if (answer.isValid())
        return answer.value().variant().toBool();
    switch (answer.error().type()) {
    case QDBusError::UnknownProperty:
    case QDBusError::UnknownInterface:
    case QDBusError::UnknownMethod:
    case QDBusError::InvalidArgs:
        return true;
    default:
        return false;
    }
}

} // namespace

StatusNotifierItem::StatusNotifierItem(const QString& identifier, const QString& title,
                                       const QDBusConnection& bus, QObject* parent)
    : QObject(parent), identifier_(identifier), title_(title), bus_(bus), toolTip_(title) {
    qDBusRegisterMetaType<DBusImage>();
    qDBusRegisterMetaType<QList<DBusImage>>();
    qDBusRegisterMetaType<DBusToolTip>();
}

StatusNotifierItem::~StatusNotifierItem() {
    leaveBus();
}

void StatusNotifierItem::start() {
    if (!bus_.isConnected()) {
        // Not before the caller is ready for it: where there is a bus, the answer takes a while too.
        QMetaObject::invokeMethod(
            this, [this] { setState(State::NoHost); }, Qt::QueuedConnection);
        return;
    }
    auto* const watcher =
        new QDBusServiceWatcher(kWatcher, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &StatusNotifierItem::lookForHost);
    // Without a sender's name, which QtDBus would look up here and now.
    for (const auto& signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus_.connect({}, kWatcherPath, kWatcher, QString::fromLatin1(signal), this, SLOT(lookForHost()));
    lookForHost();
}

void StatusNotifierItem::setImages(const QList<QImage>& images) {
    images_.clear();
    for (const QImage& image : images)
        images_.append(dbusImage(image));
    Q_EMIT NewIcon();
}

void StatusNotifierItem::setToolTip(const QString& text) {
    toolTip_ = text;
    Q_EMIT NewToolTip();
}

void StatusNotifierItem::setMenu(QMenu* menu) {
    menu_.setMenu(menu);
    Q_EMIT NewMenu();
}

QDBusObjectPath StatusNotifierItem::menuPath() const {
    // The path that hosts know for "call ContextMenu instead".
    return QDBusObjectPath(menu_.menu() ? kMenuPath : QLatin1String("/NO_DBUSMENU"));
}

void StatusNotifierItem::Activate(int x, int y) {
    noteClick({x, y});
    Q_EMIT clicked();
}

void StatusNotifierItem::SecondaryActivate(int x, int y) {
    noteClick({x, y});
}

void StatusNotifierItem::ContextMenu(int x, int y) {
    noteClick({x, y});
    if (menu_.menu())
        menu_.menu()->popup(lastClick_.value_or(QPoint(x, y)));
}

void StatusNotifierItem::Scroll(int, const QString&) {
}

void StatusNotifierItem::ProvideXdgActivationToken(const QString& token) {
    // Qt's Wayland plugin takes it from here when a window is next activated.
    qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

/// Asks the watcher something; only the answer to the last question is heard.
template <typename Answered>
void StatusNotifierItem::callWatcher(const QString& interface, const QString& method,
                                     const QVariantList& arguments, Answered answered) {
    QDBusMessage message = QDBusMessage::createMethodCall(kWatcher, kWatcherPath, interface, method);
    message.setArguments(arguments);
    delete question_;
    question_ = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(question_, &QDBusPendingCallWatcher::finished, this,
            [this, answered](QDBusPendingCallWatcher* question) {
                question_ = nullptr;
                question->deleteLater();
                answered(*question);
            });
}

void StatusNotifierItem::lookForHost() {
    callWatcher(kProperties, QStringLiteral("Get"),
                {kWatcher, QStringLiteral("IsStatusNotifierHostRegistered")},
                [this](const QDBusPendingCall& answer) {
                    if (tellsOfHost(answer))
                        registerItem();
                    else
                        setState(State::NoHost);
                });
}

void StatusNotifierItem::registerItem() {
    if (!enterBus()) {
        setState(State::NoHost);
        return;
    }
    setState(State::Registering);
    callWatcher(
        kWatcher, QStringLiteral("RegisterStatusNotifierItem"), {service_},
        [this](const QDBusPendingReply<>& answer) {
            if (answer.isError())
                logLine(QStringLiteral("The tray does not take the icon: %1").arg(answer.error().message()));
            setState(answer.isError() ? State::NoHost : State::Shown);
        });
}

bool StatusNotifierItem::enterBus() {
    if (!service_.isEmpty())
        return true;
    if (!bus_.registerObject(kItemPath, this, QDBusConnection::ExportScriptableContents) ||
        !bus_.registerObject(kMenuPath, &menu_, QDBusConnection::ExportScriptableContents)) {
        logLine(QStringLiteral("Another tray item is on this D-Bus connection already."));
        return false;
    }
    static int count = 0;
    const QString name = QStringLiteral("org.kde.StatusNotifierItem-%1-%2")
                             .arg(QCoreApplication::applicationPid())
                             .arg(++count);
    // Sandboxes may withhold the name; the connection's own serves as well.
    service_ = bus_.registerService(name) ? name : bus_.baseService();
    return true;
}

void StatusNotifierItem::leaveBus() {
    if (service_.isEmpty())
        return;
    bus_.unregisterService(service_);
    bus_.unregisterObject(kItemPath);
    bus_.unregisterObject(kMenuPath);
    service_.clear();
}

void StatusNotifierItem::setState(State state) {
    if (state == State::NoHost) {
        // A watcher without a host would keep the item for the next one, beside what took its place
        // meanwhile.
        leaveBus();
        lastClick_.reset();
    }
    if (std::exchange(state_, state) != state)
        Q_EMIT stateChanged();
}

void StatusNotifierItem::noteClick(QPoint told) {
    if (const auto place = placeOfClick(told))
        lastClick_ = place;
}
