// SPDX-License-Identifier: MIT
#include "platform/tray/DBusMenu.h"
#include "tests/platform/PrivateBus.h"

#include <gtest/gtest.h>

namespace {

class DBusMenuTest : public testing::Test {
protected:
    DBusMenuTest() { exported.setMenu(&menu); }

    DBusMenuLayout layout(int id = 0, int depth = -1, const QStringList& names = {}) {
        DBusMenuLayout result;
        exported.GetLayout(id, depth, names, result);
        return result;
    }

    /// Forgets what was signalled so far and makes the menus known, as a host does at first.
    void begin() {
        layout();
        QCoreApplication::processEvents();
        QObject::connect(&exported, &DBusMenu::LayoutUpdated, &exported,
                         [this](uint, int parent) { relaidMenus.append(parent); });
        QObject::connect(&exported, &DBusMenu::ItemsPropertiesUpdated, &exported,
                         [this](const QList<DBusMenuItem>& updated, const QList<DBusMenuItemKeys>& gone) {
                             updatedItems += updated;
                             removedKeys += gone;
                         });
    }

    QMenu menu;
    DBusMenu exported;
    QList<int> relaidMenus;
    QList<DBusMenuItem> updatedItems;
    QList<DBusMenuItemKeys> removedKeys;
};

QVariant property(const QVariant& item, const char* name) {
    return item.value<DBusMenuLayout>().properties.value(QString::fromLatin1(name));
}

} // namespace

TEST_F(DBusMenuTest, GivesTheWholeMenu) {
    QAction* const save = menu.addAction(QStringLiteral("&Save && quit my_file &now"));
    save->setEnabled(false);
    save->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Q);
    menu.addSeparator();
    QAction* const check = menu.addAction(QStringLiteral("Check"));
    check->setCheckable(true);
    check->setVisible(false);
    const DBusMenuLayout root = layout();
    ASSERT_EQ(root.children.size(), 3);
    EXPECT_EQ(property(root.children[0], "label"), QStringLiteral("_Save & quit my__file now"));
    EXPECT_EQ(property(root.children[0], "enabled"), false);
    EXPECT_EQ(
        property(root.children[0], "shortcut").value<QList<QStringList>>(),
        QList<QStringList>({{QStringLiteral("Control"), QStringLiteral("Shift"), QStringLiteral("q")}}));
    EXPECT_EQ(property(root.children[1], "type"), QStringLiteral("separator"));
    EXPECT_EQ(property(root.children[2], "toggle-type"), QStringLiteral("checkmark"));
    EXPECT_EQ(property(root.children[2], "toggle-state"), 0);
    EXPECT_EQ(property(root.children[2], "visible"), false);
    EXPECT_TRUE(layout(0, 0).children.isEmpty());
    const QVariant named = layout(0, 1, {QStringLiteral("label")}).children[0];
    EXPECT_EQ(named.value<DBusMenuLayout>().properties.keys(), QStringList{QStringLiteral("label")});
}

TEST_F(DBusMenuTest, IsFreshWhenItIsGivenAndDoesNotAskToBeReadAgainForThat) {
    int shown = 0;
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        menu.clear();
        menu.addAction(QStringLiteral("Shown %1 times").arg(++shown));
    });
    begin();
    EXPECT_EQ(property(layout().children.value(0), "label"), QStringLiteral("Shown 2 times"));
    QCoreApplication::processEvents();
    EXPECT_EQ(relaidMenus, QList<int>());

    // A host that opens the menu it already has must be told.
    EXPECT_TRUE(exported.AboutToShow(0));
    EXPECT_EQ(relaidMenus, QList<int>{0});
}

TEST_F(DBusMenuTest, TellsWhatChanged) {
    QAction* const item = menu.addAction(QStringLiteral("Before"));
    item->setCheckable(true);
    begin();

    item->setText(QStringLiteral("After"));
    item->setCheckable(false);
    QCoreApplication::processEvents();
    ASSERT_EQ(updatedItems.size(), 1);
    EXPECT_EQ(updatedItems[0].properties.value(QStringLiteral("label")), QStringLiteral("After"));
    EXPECT_TRUE(removedKeys[0].names.contains(QStringLiteral("toggle-state")));
    EXPECT_FALSE(removedKeys[0].names.contains(QStringLiteral("label")));

    menu.addAction(QStringLiteral("New"));
    QCoreApplication::processEvents();
    EXPECT_EQ(relaidMenus, QList<int>{0});

    delete item;
    QCoreApplication::processEvents();
    EXPECT_EQ(relaidMenus.last(), 0);
    EXPECT_EQ(layout().children.size(), 1);
}

TEST_F(DBusMenuTest, OutlivesItsMenu) {
    auto gone = std::make_unique<QMenu>();
    gone->addAction(QStringLiteral("Item"));
    exported.setMenu(gone.get());
    const int id = layout().children.value(0).value<DBusMenuLayout>().id;
    gone.reset();
    EXPECT_TRUE(layout().children.isEmpty());
    EXPECT_EQ(exported.EventGroup({{id, QStringLiteral("clicked"), {}, 0}}), QList<int>{id});
    EXPECT_FALSE(exported.AboutToShow(0));
}

TEST_F(DBusMenuTest, TriggersActionsOverTheBusOnceTheHostHasItsAnswer) {
    const QString path = QStringLiteral("/Menu");
    const QString interface = QStringLiteral("com.canonical.dbusmenu");
    PrivateBus privateBus;
    QDBusConnection program = privateBus.connect();
    const QDBusConnection host = privateBus.connect();
    ASSERT_TRUE(program.registerObject(path, &exported, QDBusConnection::ExportScriptableContents));
    const auto call = [&](const char* method, const QVariantList& arguments) {
        return PrivateBus::call(host, program.baseService(), path, interface, QString::fromLatin1(method),
                                arguments);
    };

    // An action that takes its time, as one with a dialog does.
    std::optional<QDBusPendingCallWatcher> click;
    std::optional<bool> answeredMeanwhile;
    menu.addAction(QStringLiteral("Ask"),
                   [&] { answeredMeanwhile = waitFor([&] { return click->isFinished(); }); });

    const QDBusMessage layoutAnswer = call("GetLayout", {0, -1, QStringList()});
    EXPECT_EQ(layoutAnswer.signature(), QStringLiteral("u(ia{sv}av)"));
    const auto root = qdbus_cast<DBusMenuLayout>(layoutAnswer.arguments().value(1));
    ASSERT_EQ(root.children.size(), 1);
    const int id = qdbus_cast<DBusMenuLayout>(root.children[0]).id;

    const QVariant nothing = QVariant::fromValue(QDBusVariant(0));
    click.emplace(PrivateBus::send(host, program.baseService(), path, interface, QStringLiteral("Event"),
                                   {id, QStringLiteral("clicked"), nothing, 0U}));
    EXPECT_TRUE(waitFor([&] { return answeredMeanwhile.has_value(); }));
    EXPECT_EQ(answeredMeanwhile, true);

    EXPECT_EQ(call("Event", {99, QStringLiteral("clicked"), nothing, 0U}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("GetProperty", {id, QStringLiteral("label")})
                  .arguments()
                  .value(0)
                  .value<QDBusVariant>()
                  .variant(),
              QStringLiteral("Ask"));
    EXPECT_EQ(
        call("GetGroupProperties", {QVariant::fromValue(QList<int>{id, 99}), QStringList()}).signature(),
        QStringLiteral("a(ia{sv})"));
    const QDBusMessage shown = call("AboutToShowGroup", {QVariant::fromValue(QList<int>{0, 99})});
    ASSERT_EQ(shown.signature(), QStringLiteral("aiai"));
    EXPECT_EQ(qdbus_cast<QList<int>>(shown.arguments().at(1)), QList<int>{99});
}
