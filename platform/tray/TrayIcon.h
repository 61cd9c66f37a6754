// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>

#include <memory>
#include <optional>

class QDBusConnection;
class QIcon;
class QMenu;
class QSystemTrayIcon;
class StatusNotifierItem;
class XEmbedTray;

/// The program's icon in the tray, by the StatusNotifierItem protocol over D-Bus, by XEmbed where nothing
/// hosts those. Which of the two shows it may change while the program runs.
class TrayIcon : public QObject {
    Q_OBJECT

public:
    /// The height, in points, that icons are drawn for first. A tray's own is known to the tray alone, which
    /// scales from the sizes that it is given.
    static constexpr int kHeight = 22;

    /// `identifier` names the item to trays that remember items ("lumivane"), `title` to people. The item has
    /// a connection of its own to the session bus: hosts take one that has other names besides for those.
    /// Nothing is shown before the first `setImages`.
    TrayIcon(const QString& identifier, const QString& title, QObject* parent = nullptr);
    /// The same on another bus than the session's.
    TrayIcon(const QString& identifier, const QString& title, const QDBusConnection& bus,
             QObject* parent = nullptr);
    ~TrayIcon() override;

    /// The icon in several sizes; the tray takes what fits it best. Without one that can be drawn, what was
    /// there stays. The first call, even without a picture, brings the item up.
    void setImages(const QList<QImage>& images);

    /// Shown while the pointer rests on the icon; the title until it is set.
    void setToolTip(const QString& text);

    /// What a right click opens. The menu stays the caller's.
    void setMenu(QMenu* menu);

    /// Whether a tray shows the item. False too until that is known (see `shownChanged`); true still for
    /// three seconds after a tray is gone, so that one that merely restarts makes no difference.
    bool isShown() const { return shown_.value_or(false); }

    /// The icon's rectangle on the screen (Qt's coordinates, y downwards) where the tray tells it; else one
    /// of an icon's size around the last click; nothing when neither is known.
    std::optional<QRect> iconGeometry() const;

    /// Where the last click was, when that is known better than the tray tells.
    void setLastClick(QPoint place);

Q_SIGNALS:
    /// A left click, or the tray's keyboard way of it.
    void clicked();

    /// A tray began to show the item, or the last one stopped. The first one tells how things stand after the
    /// start, in any case: at once where there is a tray; where there is none, after the ten seconds that one
    /// may take to come up with the session; after two where one is there that does not answer.
    void shownChanged(bool shown);

private:
    void hostChanged();
    void xembedTrayChanged();
    bool hasXEmbedTray();
    void settleWithoutHost();
    void dock();
    void setShown(bool now);
    QIcon icon() const;

    std::unique_ptr<StatusNotifierItem> notifier_;
    /// Watched from the first time on that no host is there.
    std::unique_ptr<XEmbedTray> xembedTray_;
    /// Lives only where there is an XEmbed tray and no host, so that Qt finds no host for an item of its own.
    std::unique_ptr<QSystemTrayIcon> xembedIcon_;
    /// Runs while a host may yet come.
    QTimer patience_;
    QList<QImage> images_;
    QString toolTip_;
    QPointer<QMenu> menu_;
    std::optional<bool> shown_;
};
