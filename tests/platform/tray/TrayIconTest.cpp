// SPDX-License-Identifier: MIT
#include "platform/tray/TrayIcon.h"

#include "platform/tray/StatusNotifierItem.h"
#include "tests/platform/PrivateBus.h"

#include <QMenu>

namespace {

const QString kWatcher = u"org.kde.StatusNotifierWatcher"_s;
const QString kWatcherPath = u"/StatusNotifierWatcher"_s;
const QString kItem = u"org.kde.StatusNotifierItem"_s;
const QString kItemPath = u"/StatusNotifierItem"_s;

/// A panel: watcher and host in one, on a connection of its own.
class FakePanel : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ listed)

public:
    explicit FakePanel(const QDBusConnection& connection, bool withHost = true)
        : bus(connection), hasHost(withHost) {
        bus.registerObject(kWatcherPath, this, QDBusConnection::ExportScriptableContents);
        bus.registerService(kWatcher);
    }
    ~FakePanel() override { bus.unregisterService(kWatcher); }

    QStringList listed() const { return drops ? QStringList() : QStringList{items.value(0) + form}; }
    void setHost(bool there) {
        hasHost = there;
        there ? Q_EMIT StatusNotifierHostRegistered() : Q_EMIT StatusNotifierHostUnregistered();
    }

    QDBusPendingCall callItem(const char* method, int x, int y) {
        return PrivateBus::send(bus, items.last(), kItemPath, kItem, method, {x, y});
    }
    QVariantMap itemProperties() {
        const QDBusMessage answer = PrivateBus::call(bus, items.last(), kItemPath,
                                                     u"org.freedesktop.DBus.Properties"_s, "GetAll", {kItem});
        return qdbus_cast<QVariantMap>(answer.arguments().value(0));
    }

    QDBusConnection bus;
    bool hasHost;
    bool drops = false;
    QString form; ///< what its list has behind an item's name
    QStringList items;
    int newIcons = 0;

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& service) { items.append(service); }
    void countNewIcon() { ++newIcons; }

Q_SIGNALS:
    Q_SCRIPTABLE void StatusNotifierHostRegistered();
    Q_SCRIPTABLE void StatusNotifierHostUnregistered();
    Q_SCRIPTABLE void StatusNotifierItemUnregistered(const QString& item);
};

QImage picture(int size, const QColor& colour) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

class TrayIconTest : public testing::Test {
protected:
    TrayIconTest() {
        QObject::connect(&item, &TrayIcon::shownChanged, &item, [this](bool now) { shown.append(now); });
        QObject::connect(&item, &TrayIcon::clicked, &item, [this] { ++clicks; });
    }

    /// Brings the item up in a panel.
    std::unique_ptr<FakePanel> panelWithItem() {
        auto panel = std::make_unique<FakePanel>(bus.connect());
        item.setImages({picture(16, Qt::red)});
        EXPECT_TRUE(waitFor([this] { return item.isShown(); }));
        EXPECT_EQ(panel->items, QStringList{own.baseService()}) << "hosts drop items of well-known names";
        return panel;
    }

    PrivateBus bus;
    QDBusConnection own = bus.connect();
    TrayIcon item{u"moon"_s, u"Moon"_s, own};
    QList<bool> shown;
    int clicks = 0;
};

} // namespace

TEST_F(TrayIconTest, DescribesItselfAndGivesEverySizeInNetworkByteOrder) {
    const auto panel = panelWithItem();
    const QList<QImage> images{picture(2, QColor(255, 255, 0, 128)), picture(3, QColor(1, 2, 3))};
    panel->bus.connect(panel->items.last(), kItemPath, kItem, u"NewIcon"_s, panel.get(),
                       SLOT(countNewIcon()));
    item.setImages(images);
    item.setImages(images);
    const CaughtLog log;
    item.setImages({QImage()});
    EXPECT_EQ(log.lines().size(), 1);

    const QVariantMap properties = panel->itemProperties();
    using Row = std::pair<QString, QVariant>;
    for (const auto& [name, value] :
         {Row{u"Category"_s, QVariant(u"ApplicationStatus"_s)}, Row{u"Id"_s, u"moon"_s},
          Row{u"Title"_s, u"Moon"_s}, Row{u"Status"_s, u"Active"_s}, Row{u"ItemIsMenu"_s, false}})
        EXPECT_EQ(properties.value(name), value) << qPrintable(name);
    EXPECT_EQ(properties.value(u"Menu"_s).value<QDBusObjectPath>().path(), u"/NO_DBUSMENU");
    const QVariant pixmaps = properties.value(u"IconPixmap"_s);
    EXPECT_EQ(pixmaps.value<QDBusArgument>().currentSignature(), u"a(iiay)");
    const auto given = qdbus_cast<QList<DBusImage>>(pixmaps);
    ASSERT_EQ(given.size(), 2);
    EXPECT_EQ(given[0].width, 2);
    EXPECT_EQ(given[0].pixels, QByteArray::fromHex("80ffff00").repeated(4));
    EXPECT_EQ(given[1].height, 3);
    EXPECT_EQ(given[1].pixels, QByteArray::fromHex("ff010203").repeated(9));
    settle(panel->bus);
    EXPECT_EQ(panel->newIcons, 1);
}

TEST_F(TrayIconTest, WaitsForAHost) {
    FakePanel panel(bus.connect(), false);
    item.setImages({}); // nor does it need a picture to come up
    settle(own);
    EXPECT_TRUE(panel.items.isEmpty());
    panel.setHost(true);
    ASSERT_TRUE(waitFor([this] { return item.isShown(); }));
    EXPECT_EQ(panel.items.size(), 1);
    panel.setHost(false);
    EXPECT_TRUE(waitFor([this] { return !item.isShown(); }));
    EXPECT_EQ(shown, (QList<bool>{true, false}));
}

TEST_F(TrayIconTest, AStoppedTrayIsNotWaitedForButTakenWhenItGoesOn) {
    QDBusConnection connection = bus.connect();
    SilentObject watcher;
    connection.registerVirtualObject(kWatcherPath, &watcher);
    connection.registerService(kWatcher);
    item.setImages({picture(16, Qt::red)});
    ASSERT_TRUE(waitFor([this] { return shown == QList<bool>{false}; }, 3000));
    connection.send(watcher.asked.last().createReply(QVariant::fromValue(QDBusVariant(true))));
    ASSERT_TRUE(waitFor([&] { return watcher.asked.last().member() == u"RegisterStatusNotifierItem"; }));
    connection.send(watcher.asked.last().createReply());
    EXPECT_TRUE(waitFor([this] { return item.isShown(); }));
}

TEST_F(TrayIconTest, AHostThatDropsTheItemGetsItAgain) {
    const auto panel = panelWithItem();
    panel->drops = true;
    ASSERT_TRUE(waitFor([&] { return panel->items.size() == 2; })) << "silently";
    panel->drops = false;
    panel->form = u"/StatusNotifierItem"_s;
    letPass(1500);
    EXPECT_EQ(panel->items.size(), 2) << "it finds itself listed";
    panel->form = u"@/StatusNotifierItem"_s;
    Q_EMIT panel->StatusNotifierItemUnregistered(own.baseService() + u'0');
    Q_EMIT panel->StatusNotifierItemUnregistered(own.baseService() + panel->form);
    ASSERT_TRUE(waitFor([&] { return panel->items.size() == 3; }));
    EXPECT_EQ(shown, QList<bool>{true});
    // Not for ever.
    const CaughtLog log;
    panel->drops = true;
    Q_EMIT panel->StatusNotifierItemUnregistered(own.baseService());
    ASSERT_TRUE(waitFor([&] { return !log.lines().isEmpty(); }));
    EXPECT_EQ(panel->items.size(), 4);
    EXPECT_TRUE(waitFor([this] { return !item.isShown(); }));
}

TEST_F(TrayIconTest, KnowsWhereTheClickWas) {
    QMenu menu;
    menu.addAction(u"Quit"_s);
    item.setMenu(&menu);
    const auto panel = panelWithItem();
    EXPECT_FALSE(item.iconGeometry());
    // The panel has its answer while the click is still being worked on.
    const QDBusPendingCallWatcher click(panel->callItem("Activate", 120, 3));
    bool isAnswered = false;
    const auto working = QObject::connect(&item, &TrayIcon::clicked, &item,
                                          [&] { isAnswered = waitFor([&] { return click.isFinished(); }); });
    EXPECT_TRUE(waitFor([&] { return isAnswered; }));
    QObject::disconnect(working);
    EXPECT_EQ(item.iconGeometry(), QRect(110, -7, 22, 22));
    // Some hosts tell nothing of use.
    panel->callItem("Activate", 0, 0);
    panel->callItem("Activate", -5000, 70000);
    EXPECT_TRUE(waitFor([this] { return clicks == 3; }));
    EXPECT_EQ(item.iconGeometry(), QRect(110, -7, 22, 22));

    panel->callItem("ContextMenu", 90, 40);
    EXPECT_TRUE(waitFor([&] { return menu.isVisible(); }));
    EXPECT_EQ(menu.pos(), QPoint(90, 40));
    EXPECT_EQ(clicks, 3);
    menu.hide();
}

#include "TrayIconTest.moc"
