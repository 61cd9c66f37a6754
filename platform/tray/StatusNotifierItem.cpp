// SPDX-License-Identifier: MIT
#include "platform/tray/StatusNotifierItem.h"

#include "platform/log/Log.h"
#include "platform/windows/Screen.h"

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
#include <chrono>
#include <limits>
#include <utility>

namespace {

constexpr auto kWatcher = QLatin1String("org.kde.StatusNotifierWatcher");
constexpr auto kWatcherPath = QLatin1String("/StatusNotifierWatcher");
constexpr auto kItemPath = QLatin1String("/StatusNotifierItem");
constexpr auto kMenuPath = QLatin1String("/StatusNotifierItem/Menu");
constexpr auto kProperties = QLatin1String("org.freedesktop.DBus.Properties");

/// A host that drops the item at first does so within this time.
constexpr std::chrono::seconds kRecheck{1};
/// A host that drops the item more often doesn't want it.
constexpr int kDropsBorne = 3;

DBusImage dbusImage(const QImage& image) {
    const QImage straight = image.convertToFormat(QImage::Format_ARGB32);
    QByteArray pixels(straight.sizeInBytes(), Qt::Uninitialized);
    qToBigEndian<quint32>(straight.constBits(), straight.sizeInBytes() / 4, pixels.data());
    return {straight.width(), straight.height(), pixels};
}

/// How far a place on a screen is from the nearest upright edge and from the nearest other one, together.
int distanceFromCorner(QPoint place, const QRect& screen) {
    return std::min(place.x() - screen.left(), screen.right() - place.x()) +
           std::min(place.y() - screen.top(), screen.bottom() - place.y());
}

/// What a host tells in Qt's coordinates: on a scaled screen some tell pixels, others Qt's points. Trays are
/// in corners, so that the reading nearer to one is the right one. Nothing for a place on no screen.
std::optional<QPoint> pointsFrom(QPoint told) {
    std::optional<QPoint> found;
    int least = std::numeric_limits<int>::max();
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QRect whole = screen->geometry();
        const QPoint scaled = whole.topLeft() + (told - whole.topLeft()) / screen->devicePixelRatio();
        for (const QPoint place : {scaled, told}) {
            const int distance = distanceFromCorner(place, whole);
            if (whole.contains(place) && distance < least) {
                found = place;
                least = distance;
            }
        }
    }
    return found;
}

/// Where a click was, as far as it can be known: the pointer where that is on a bar, else what the host
/// tells, which for some is nothing of use. On X11 the pointer's place is known everywhere, under Wayland
/// (XWayland too) over our own windows only.
std::optional<QPoint> placeOfClick(QPoint told) {
    const bool isPointerKnown =
        QGuiApplication::platformName() == u"xcb" && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (isPointerKnown && Screen::isPointerOnBar())
        return QCursor::pos();
    return told.isNull() ? std::nullopt : pointsFrom(told);
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
    recheck_.setSingleShot(true);
    recheck_.setInterval(kRecheck);
    connect(&recheck_, &QTimer::timeout, this,
            [this] { state_ == State::Shown ? checkRegistration() : registerItem(); });
}

void StatusNotifierItem::start() {
    if (!bus_.isConnected()) {
        // Not before the caller is ready for it: where there is a bus, the answer takes a while too.
        QMetaObject::invokeMethod(
            this, [this] { setState(State::NoHost); }, Qt::QueuedConnection);
        return;
    }
    if (!bus_.registerObject(kItemPath, this, QDBusConnection::ExportScriptableContents) ||
        !bus_.registerObject(kMenuPath, &menu_, QDBusConnection::ExportScriptableContents))
        logLine(QStringLiteral("Another tray item is on this D-Bus connection already."));
    auto* const watcher =
        new QDBusServiceWatcher(kWatcher, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &StatusNotifierItem::lookForHost);
    // Without a sender's name, which QtDBus would look up here and now.
    for (const auto& signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus_.connect({}, kWatcherPath, kWatcher, QString::fromLatin1(signal), this, SLOT(lookForHost()));
    bus_.connect({}, kWatcherPath, kWatcher, QStringLiteral("StatusNotifierItemUnregistered"), this,
                 SLOT(itemUnregistered(QString)));
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

/// Asks the watcher something; only the answer to the last question is heard, however late it comes: nothing
/// else would tell that a stopped watcher goes on.
template <typename Answered>
void StatusNotifierItem::callWatcher(const QString& interface, const QString& method,
                                     const QVariantList& arguments, Answered answered) {
    QDBusMessage message = QDBusMessage::createMethodCall(kWatcher, kWatcherPath, interface, method);
    message.setArguments(arguments);
    delete question_;
    question_ = new QDBusPendingCallWatcher(bus_.asyncCall(message, std::numeric_limits<int>::max()), this);
    connect(question_, &QDBusPendingCallWatcher::finished, this,
            [this, answered](QDBusPendingCallWatcher* question) {
                question_ = nullptr;
                question->deleteLater();
                answered(*question);
            });
}

void StatusNotifierItem::lookForHost() {
    recheck_.stop();
    dropsLeft_ = kDropsBorne;
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
    setState(State::Registering);
    callWatcher(
        kWatcher, QStringLiteral("RegisterStatusNotifierItem"), {bus_.baseService()},
        [this](const QDBusPendingReply<>& answer) {
            if (answer.isError())
                logLine(QStringLiteral("The tray does not take the icon: %1").arg(answer.error().message()));
            else
                recheck_.start();
            setState(answer.isError() ? State::NoHost : State::Shown);
        });
}

void StatusNotifierItem::checkRegistration() {
    callWatcher(kProperties, QStringLiteral("Get"),
                {kWatcher, QStringLiteral("RegisteredStatusNotifierItems")},
                [this](const QDBusPendingReply<QDBusVariant>& answer) {
                    const QStringList items = answer.value().variant().toStringList();
                    if (answer.isValid() &&
                        std::ranges::none_of(items, [this](const QString& item) { return isThisItem(item); }))
                        registerAgain();
                });
}

void StatusNotifierItem::itemUnregistered(const QString& item) {
    if (state_ == State::Shown && isThisItem(item))
        registerAgain();
}

void StatusNotifierItem::registerAgain() {
    if (dropsLeft_-- > 0) {
        setState(State::Registering);
        recheck_.start();
    } else {
        logLine(QStringLiteral("The tray drops the icon again and again."));
        setState(State::NoHost);
    }
}

/// Watchers list an item as ":1.23", ":1.23/StatusNotifierItem" or ":1.23@/StatusNotifierItem".
bool StatusNotifierItem::isThisItem(const QString& listed) const {
    const QString name = bus_.baseService();
    return listed.startsWith(name) &&
           (listed.size() == name.size() || listed[name.size()] == u'/' || listed[name.size()] == u'@');
}

void StatusNotifierItem::setState(State state) {
    if (state == State::NoHost)
        lastClick_.reset();
    if (std::exchange(state_, state) != state)
        Q_EMIT stateChanged();
}

void StatusNotifierItem::noteClick(QPoint told) {
    if (const auto place = placeOfClick(told))
        lastClick_ = place;
}
