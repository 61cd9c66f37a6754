// SPDX-License-Identifier: MIT
#include "platform/tray/DBusMenu.h"

#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <QMenu>

namespace {

class DBusMenuTest : public testing::Test {
protected:
    DBusMenuTest() {
        exported.setMenu(&menu);
        QObject::connect(&exported, &DBusMenu::LayoutUpdated, &exported,
                         [this](uint, int parent) { relaidMenus.append(parent); });
        QObject::connect(&exported, &DBusMenu::ItemsPropertiesUpdated, &exported,
                         [this](const QList<DBusMenuItem>& updated, const QList<DBusMenuItemKeys>& gone) {
                             updatedItems += updated;
                             removedKeys += gone;
                         });
    }

    DBusMenuLayout layout(int depth = -1, const QStringList& names = {}) {
        DBusMenuLayout result;
        exported.GetLayout(0, depth, names, result);
        return result;
    }

    static DBusMenuLayout child(const DBusMenuLayout& root, qsizetype number) {
        return root.children.value(number).value<DBusMenuLayout>();
    }

    /// Makes the menus known, as a host does at first.
    void begin() {
        layout();
        QCoreApplication::processEvents();
        relaidMenus.clear();
    }

    QMenu menu;
    DBusMenu exported;
    QList<int> relaidMenus;
    QList<DBusMenuItem> updatedItems;
    QList<DBusMenuItemKeys> removedKeys;
};

} // namespace

TEST_F(DBusMenuTest, GivesTheWholeMenu) {
    QAction* const save = menu.addAction(u"&Save && quit my_file &now"_s);
    save->setEnabled(false);
    save->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Q);
    menu.addSeparator();
    QAction* const check = menu.addAction(u"Check"_s);
    check->setCheckable(true);
    check->setVisible(false);
    const DBusMenuLayout root = layout();
    ASSERT_EQ(root.children.size(), 3);
    const QStringList keys{u"Control"_s, u"Shift"_s, u"q"_s};
    EXPECT_EQ(child(root, 0).properties.value(u"shortcut"_s).value<QList<QStringList>>(),
              QList<QStringList>({keys}));
    using Row = std::tuple<int, QString, QVariant>;
    for (const auto& [number, name, value] :
         {Row{0, u"label"_s, u"_Save & quit my__file now"_s}, Row{0, u"enabled"_s, false},
          Row{1, u"type"_s, u"separator"_s}, Row{2, u"toggle-type"_s, u"checkmark"_s},
          Row{2, u"toggle-state"_s, 0}, Row{2, u"visible"_s, false}})
        EXPECT_EQ(child(root, number).properties.value(name), value) << qPrintable(name);
    EXPECT_TRUE(layout(0).children.isEmpty());
    EXPECT_EQ(child(layout(1, {u"label"_s}), 0).properties.keys(), QStringList{u"label"_s});
}

TEST_F(DBusMenuTest, IsFreshWhenItIsGivenAndDoesNotAskToBeReadAgainForThat) {
    int shown = 0;
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        menu.clear();
        menu.addAction(u"Shown %1 times"_s.arg(++shown));
    });
    begin();
    EXPECT_EQ(child(layout(), 0).properties.value(u"label"_s), u"Shown 2 times"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(relaidMenus, QList<int>());
    // A host that opens the menu it already has must be told.
    EXPECT_TRUE(exported.AboutToShow(0));
    EXPECT_EQ(relaidMenus, QList<int>{0});
}

TEST_F(DBusMenuTest, TellsWhatChangedAndOutlivesItsMenu) {
    auto other = std::make_unique<QMenu>();
    QAction* const item = other->addAction(u"Before"_s);
    item->setCheckable(true);
    exported.setMenu(other.get());
    begin();
    item->setText(u"After"_s);
    item->setCheckable(false);
    QCoreApplication::processEvents();
    ASSERT_EQ(updatedItems.size(), 1);
    EXPECT_EQ(updatedItems[0].properties.value(u"label"_s), u"After"_s);
    EXPECT_TRUE(removedKeys[0].names.contains(u"toggle-state"_s));
    EXPECT_FALSE(removedKeys[0].names.contains(u"label"_s));

    other->addAction(u"New"_s);
    delete item;
    QCoreApplication::processEvents();
    EXPECT_EQ(relaidMenus, QList<int>{0});
    ASSERT_EQ(layout().children.size(), 1);
    const int id = child(layout(), 0).id;
    other.reset();
    EXPECT_TRUE(layout().children.isEmpty());
    EXPECT_EQ(exported.EventGroup({{id, u"clicked"_s, {}, 0}}), QList<int>{id}) << "it is known no more";
    EXPECT_FALSE(exported.AboutToShow(0));
}

TEST_F(DBusMenuTest, TriggersAnActionOnceTheHostHasItsAnswer) {
    int triggered = 0;
    menu.addAction(u"Ask"_s, [&] { ++triggered; });
    const int id = child(layout(), 0).id;
    EXPECT_EQ(exported.EventGroup({{id, u"hovered"_s, {}, 0}, {99, u"clicked"_s, {}, 0}}), QList<int>{99});
    exported.Event(id, u"clicked"_s, {}, 0);
    EXPECT_EQ(triggered, 0) << "it may last as long as a dialog is open";
    EXPECT_TRUE(waitFor([&] { return triggered > 0; }));
    EXPECT_EQ(triggered, 1) << "by the click alone";
    EXPECT_EQ(exported.GetProperty(id, u"label"_s).variant(), u"Ask"_s);
    QList<int> unknown;
    EXPECT_TRUE(exported.AboutToShowGroup({id, 99}, unknown).isEmpty());
    EXPECT_EQ(unknown, QList<int>{99});
}
