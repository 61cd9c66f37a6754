// SPDX-License-Identifier: MIT
#include "platform/tray/DBusMenu.h"

#include <QActionEvent>
#include <QDBusMetaType>
#include <QGuiApplication>

#include <utility>

namespace {

/// Qt marks a mnemonic with '&', the bus with '_'; each doubles its own mark to mean the character.
QString withUnderscores(const QString& text) {
    QString label;
    bool marked = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'_') {
            label += u"__";
        } else if (text[i] != u'&') {
            label += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == u'&') {
            label += text[i++];
        } else if (!std::exchange(marked, true)) {
            label += u'_';
        }
    }
    return label;
}

/// The keys of a shortcut as the bus has them: for each press its modifiers and then the key, by GTK's names.
QList<QStringList> keysOf(const QKeySequence& shortcut) {
    QList<QStringList> presses;
    for (int i = 0; i < shortcut.count(); ++i) {
        QStringList press;
        for (const auto& [modifier, name] :
             {std::pair{Qt::ControlModifier, "Control"}, std::pair{Qt::AltModifier, "Alt"},
              std::pair{Qt::ShiftModifier, "Shift"}, std::pair{Qt::MetaModifier, "Super"}}) {
            if (shortcut[i].keyboardModifiers().testFlag(modifier))
                press.append(QLatin1String(name));
        }
        press.append(QKeySequence(shortcut[i].key()).toString(QKeySequence::PortableText).toLower());
        presses.append(press);
    }
    return presses;
}

QVariantMap allProperties(const QAction& action) {
    if (action.isSeparator())
        return {{QStringLiteral("type"), QStringLiteral("separator")},
                {QStringLiteral("visible"), action.isVisible()}};
    QVariantMap properties{{QStringLiteral("label"), withUnderscores(action.text())},
                           {QStringLiteral("enabled"), action.isEnabled()},
                           {QStringLiteral("visible"), action.isVisible()}};
    if (action.isCheckable()) {
        properties.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
        properties.insert(QStringLiteral("toggle-state"), action.isChecked() ? 1 : 0);
    }
    if (!action.shortcut().isEmpty() && action.isShortcutVisibleInContextMenu())
        properties.insert(QStringLiteral("shortcut"), QVariant::fromValue(keysOf(action.shortcut())));
    return properties;
}

} // namespace

DBusMenu::DBusMenu(QObject* parent) : QObject(parent) {
    qDBusRegisterMetaType<DBusMenuLayout>();
    qDBusRegisterMetaType<DBusMenuItem>();
    qDBusRegisterMetaType<QList<DBusMenuItem>>();
    qDBusRegisterMetaType<DBusMenuItemKeys>();
    qDBusRegisterMetaType<QList<DBusMenuItemKeys>>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<QList<DBusMenuEvent>>();
    qDBusRegisterMetaType<QList<QStringList>>();
}

void DBusMenu::setMenu(QMenu* menu) {
    if (menu_ == menu)
        return;
    if (menu_)
        menu_->removeEventFilter(this);
    menu_ = menu;
    if (menu)
        menu->installEventFilter(this);
    layoutChanged_ = true;
    scheduleUpdate();
}

QString DBusMenu::textDirection() const {
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

uint DBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList& names, DBusMenuLayout& layout) {
    if (isItem(parentId))
        layout = layoutOf(parentId, recursionDepth, names);
    else
        refuse(parentId);
    return revision_;
}

QList<DBusMenuItem> DBusMenu::GetGroupProperties(const QList<int>& ids, const QStringList& names) {
    QList<DBusMenuItem> items;
    for (const int id : ids.isEmpty() ? actions_.keys() : ids) {
        if (isItem(id))
            items.append({id, propertiesOf(id, names)});
    }
    return items;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString& name) {
    const QVariant value = isItem(id) ? propertiesOf(id, {}).value(name) : QVariant();
    if (value.isValid())
        return QDBusVariant(value);
    refuse(id);
    return QDBusVariant(QString());
}

void DBusMenu::Event(int id, const QString& eventId, const QDBusVariant&, uint) {
    if (!handleEvent(id, eventId))
        refuse(id);
}

QList<int> DBusMenu::EventGroup(const QList<DBusMenuEvent>& events) {
    QList<int> unknown;
    for (const DBusMenuEvent& event : events) {
        if (!handleEvent(event.id, event.name))
            unknown.append(event.id);
    }
    if (!events.isEmpty() && unknown.size() == events.size())
        refuse(unknown.first());
    return unknown;
}

bool DBusMenu::AboutToShow(int id) {
    if (!isItem(id)) {
        refuse(id);
        return false;
    }
    return id == 0 && prepareMenu();
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
    QList<int> changed;
    for (const int id : ids) {
        if (!isItem(id))
            idErrors.append(id);
        else if (id == 0 && prepareMenu())
            changed.append(id);
    }
    return changed;
}

bool DBusMenu::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
        layoutChanged_ = true;
        scheduleUpdate();
        break;
    case QEvent::ActionChanged:
        changedItems_.insert(idOf(static_cast<QActionEvent*>(event)->action()));
        scheduleUpdate();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool DBusMenu::isItem(int id) const {
    return id == 0 || actions_.contains(id);
}

int DBusMenu::idOf(QAction* action) {
    int& id = ids_[action];
    if (id == 0) {
        id = ++lastId_;
        actions_.insert(id, action);
        connect(action, &QObject::destroyed, this, [this, action, gone = id] {
            ids_.remove(action);
            actions_.remove(gone);
        });
    }
    return id;
}

/// Those properties of an item that `names` lists; all when it lists none.
QVariantMap DBusMenu::propertiesOf(int id, const QStringList& names) const {
    QVariantMap properties =
        id == 0 ? QVariantMap{{QStringLiteral("children-display"), QStringLiteral("submenu")}}
                : allProperties(*actions_.value(id));
    if (!names.isEmpty())
        properties.removeIf([&names](const auto& property) { return !names.contains(property.key()); });
    return properties;
}

/// An item, with what the menu holds where it is the menu itself and `depth` is not 0.
DBusMenuLayout DBusMenu::layoutOf(int id, int depth, const QStringList& names) {
    DBusMenuLayout layout{id, propertiesOf(id, names), {}};
    if (depth == 0 || id != 0 || !menu_)
        return layout;
    Q_EMIT menu_->aboutToShow();
    // This answer holds what the menu's owner changed just now; telling the host to ask again would go on
    // for ever.
    layoutChanged_ = false;
    const QList<QAction*> actions = menu_->actions();
    for (QAction* action : actions)
        layout.children.append(QVariant::fromValue(layoutOf(idOf(action), 0, names)));
    return layout;
}

bool DBusMenu::handleEvent(int id, const QString& name) {
    if (!isItem(id))
        return false;
    QAction* const action = actions_.value(id);
    // The host gets its answer first: what the action does may last as long as a dialog is open.
    if (action && name == u"clicked")
        QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
    return true;
}

/// Lets the menu's owner bring it up to date; whether that changed anything.
bool DBusMenu::prepareMenu() {
    if (!menu_)
        return false;
    Q_EMIT menu_->aboutToShow();
    const bool changed = !changedItems_.isEmpty() || layoutChanged_;
    sendUpdates();
    return changed;
}

void DBusMenu::refuse(int id) {
    if (calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("The menu has no such item: %1").arg(id));
}

void DBusMenu::scheduleUpdate() {
    if (!std::exchange(updateScheduled_, true))
        QMetaObject::invokeMethod(this, &DBusMenu::sendUpdates, Qt::QueuedConnection);
}

void DBusMenu::sendUpdates() {
    static const QStringList all{QStringLiteral("type"),        QStringLiteral("label"),
                                 QStringLiteral("enabled"),     QStringLiteral("visible"),
                                 QStringLiteral("toggle-type"), QStringLiteral("toggle-state"),
                                 QStringLiteral("shortcut")};
    updateScheduled_ = false;
    QList<DBusMenuItem> updated;
    QList<DBusMenuItemKeys> removed;
    for (const int id : std::exchange(changedItems_, {})) {
        if (!actions_.contains(id))
            continue;
        updated.append({id, propertiesOf(id, {})});
        QStringList defaulted = all;
        defaulted.removeIf([&](const QString& name) { return updated.last().properties.contains(name); });
        removed.append({id, defaulted});
    }
    if (!updated.isEmpty())
        Q_EMIT ItemsPropertiesUpdated(updated, removed);
    if (std::exchange(layoutChanged_, false))
        Q_EMIT LayoutUpdated(++revision_, 0);
}
