// SPDX-License-Identifier: MIT
#pragma once

#include "platform/tray/DBusStructure.h"

#include <QDBusContext>
#include <QDBusVariant>
#include <QHash>
#include <QMenu>
#include <QPointer>
#include <QSet>
#include <QVariantMap>

/// A menu's item and what is below it, `(ia{sv}av)` on the bus.
struct DBusMenuLayout {
    int id = 0;
    QVariantMap properties;
    QVariantList children; ///< layouts

    static auto fields(auto& self) { return std::tie(self.id, self.properties, self.children); }
};

/// An item's properties, `(ia{sv})`.
struct DBusMenuItem {
    int id = 0;
    QVariantMap properties;

    static auto fields(auto& self) { return std::tie(self.id, self.properties); }
};

/// The names of an item's properties that are back at their defaults, `(ias)`.
struct DBusMenuItemKeys {
    int id = 0;
    QStringList names;

    static auto fields(auto& self) { return std::tie(self.id, self.names); }
};

/// Something that happened to an item in the host's picture of the menu, `(isvu)`.
struct DBusMenuEvent {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;

    static auto fields(auto& self) { return std::tie(self.id, self.name, self.data, self.timestamp); }
};

/// Shows a QMenu to other programs as `com.canonical.dbusmenu`: texts, shortcuts, separators, check marks.
/// Item 0 is the menu itself. `QMenu::aboutToShow` is emitted before a menu's items are given away, so that
/// texts and check marks set there are fresh; what changes later is sent after them. The object does nothing
/// until it is registered on a bus with its scriptable contents.
class DBusMenu : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    explicit DBusMenu(QObject* parent = nullptr);

    /// The menu stays the caller's; without one the layout is empty.
    void setMenu(QMenu* menu);
    QMenu* menu() const { return menu_; }

    uint version() const { return 3; }
    QString status() const { return QStringLiteral("normal"); }
    QString textDirection() const;
    QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    // What the bus calls. An id that is no item's is answered with an error, in groups it is skipped or
    // listed.
    Q_SCRIPTABLE uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                                DBusMenuLayout& layout);
    Q_SCRIPTABLE QList<DBusMenuItem> GetGroupProperties(const QList<int>& ids,
                                                        const QStringList& propertyNames);
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString& name);
    Q_SCRIPTABLE void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    Q_SCRIPTABLE QList<int> EventGroup(const QList<DBusMenuEvent>& events);
    Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

Q_SIGNALS:
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);
    Q_SCRIPTABLE void ItemsPropertiesUpdated(const QList<DBusMenuItem>& updatedProps,
                                             const QList<DBusMenuItemKeys>& removedProps);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool isItem(int id) const;
    int idOf(QAction* action);
    QVariantMap propertiesOf(int id, const QStringList& names) const;
    DBusMenuLayout layoutOf(int id, int depth, const QStringList& names);
    bool handleEvent(int id, const QString& name);
    bool prepareMenu();
    void refuse(int id);
    void scheduleUpdate();
    void sendUpdates();

    QPointer<QMenu> menu_;
    QHash<int, QAction*> actions_;
    QHash<QAction*, int> ids_;
    int lastId_ = 0;
    uint revision_ = 1;
    // What changed since the host was last told.
    QSet<int> changedItems_;
    bool layoutChanged_ = false;
    bool updateScheduled_ = false;
};
