// SPDX-License-Identifier: MIT
#pragma once

#include "platform/tray/DBusMenu.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QTimer>

#include <optional>

class QDBusPendingCall;
class QDBusPendingCallWatcher;

/// A picture as trays take it, `(iiay)` on the bus: rows of 32-bit A, R, G, B in network byte order, colours
/// not multiplied by alpha.
struct DBusImage {
    int width = 0;
    int height = 0;
    QByteArray pixels;

    static auto fields(auto& self) { return std::tie(self.width, self.height, self.pixels); }
};

/// `(sa(iiay)ss)`: an icon's name or pictures, a heading and a text below it.
struct DBusToolTip {
    QString iconName;
    QList<DBusImage> images;
    QString title;
    QString text;

    static auto fields(auto& self) { return std::tie(self.iconName, self.images, self.title, self.text); }
};

/// A tray item that hosts (panels) show by way of the bus, `org.kde.StatusNotifierItem`. It registers with
/// whatever watcher is there, now or later, when a host is there too, and again where the host drops it.
/// It goes by its connection's unique name: a well-known one that a host has to look up may seem to change
/// its owner, and the item is dropped. QSystemTrayIcon's own item would drop the click's place and decide at
/// its first use, for good, whether there is a watcher. One such item can live on a connection.
class StatusNotifierItem : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ noName CONSTANT)
    Q_PROPERTY(QList<DBusImage> IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT)
    Q_PROPERTY(QList<DBusImage> OverlayIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT)
    Q_PROPERTY(QList<DBusImage> AttentionIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ noName CONSTANT)
    Q_PROPERTY(QString IconThemePath READ noName CONSTANT)
    Q_PROPERTY(DBusToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menuPath)

public:
    enum class State {
        Unknown,     ///< Not started, or no answer about a host yet; a stopped watcher gives none.
        NoHost,      ///< Nobody would show the item.
        Registering, ///< A host is there, the watcher has not yet taken the item.
        Shown,
    };

    StatusNotifierItem(const QString& identifier, const QString& title, const QDBusConnection& bus,
                       QObject* parent = nullptr);

    /// Begins to look for a host; `stateChanged` tells what came of it. Waits for no other program.
    void start();
    State state() const { return state_; }

    void setImages(const QList<QImage>& images);
    void setToolTip(const QString& text);
    /// The menu stays the caller's.
    void setMenu(QMenu* menu);

    /// Where on the screen the last click was, in Qt's coordinates, as far as the host or X11 told.
    std::optional<QPoint> lastClick() const { return lastClick_; }
    void setLastClick(QPoint place) { lastClick_ = place; }

    QString category() const { return QStringLiteral("ApplicationStatus"); }
    QString id() const { return identifier_; }
    QString title() const { return title_; }
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    QString noName() const { return {}; }
    QList<DBusImage> noPixmap() const { return {}; }
    QList<DBusImage> iconPixmap() const { return images_; }
    DBusToolTip toolTip() const { return {{}, {}, toolTip_, {}}; }
    bool itemIsMenu() const { return false; }
    QDBusObjectPath menuPath() const;

public Q_SLOTS:
    // What hosts call, with the pointer's place on the screen.
    Q_SCRIPTABLE void Activate(int x, int y);
    Q_SCRIPTABLE void SecondaryActivate(int x, int y);
    Q_SCRIPTABLE void ContextMenu(int x, int y);
    Q_SCRIPTABLE void Scroll(int delta, const QString& orientation);
    Q_SCRIPTABLE void ProvideXdgActivationToken(const QString& token);

Q_SIGNALS:
    Q_SCRIPTABLE void NewTitle();
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewOverlayIcon();
    Q_SCRIPTABLE void NewAttentionIcon();
    Q_SCRIPTABLE void NewToolTip();
    Q_SCRIPTABLE void NewMenu();
    Q_SCRIPTABLE void NewStatus(const QString& status);

    void clicked();
    void stateChanged();

private Q_SLOTS:
    void lookForHost();
    void itemUnregistered(const QString& item);

private:
    template <typename Answered>
    void callWatcher(const QString& interface, const QString& method, const QVariantList& arguments,
                     Answered answered);
    void registerItem();
    void checkRegistration();
    void registerAgain();
    bool isThisItem(const QString& listed) const;
    void setState(State state);
    void noteClick(QPoint told);

    const QString identifier_;
    const QString title_;
    QDBusConnection bus_;
    State state_ = State::Unknown;
    /// Until a registration is looked at again, or repeated.
    QTimer recheck_;
    int dropsLeft_ = 0;
    QPointer<QDBusPendingCallWatcher> question_;
    QList<DBusImage> images_;
    QString toolTip_;
    DBusMenu menu_;
    std::optional<QPoint> lastClick_;
};
