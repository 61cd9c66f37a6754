// SPDX-License-Identifier: MIT
#include "tests/TestMain.h"
#include "tests/platform/PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QFileInfo>

#include <memory>
#include <vector>

namespace {

const QString kIdentifier = u"com.corvanta.Lumivane"_s;
constexpr int kPatience = 20000; // milliseconds

/// Copies of the program on a session bus of their own.
class RunningCopiesTest : public testing::Test {
protected:
    QProcess& start(const QStringList& arguments = {u"warned"_s}) {
        QProcess& copy = *copies_.emplace_back(std::make_unique<QProcess>());
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus_.address());
        environment.insert(u"XDG_CONFIG_HOME"_s, config_.path());
        copy.setProcessEnvironment(environment);
        copy.start(QCoreApplication::applicationDirPath() + u"/shell_probe"_s, arguments);
        return copy;
    }

    static QString line(QProcess& program) {
        if (!program.canReadLine())
            program.waitForReadyRead(kPatience);
        return QString::fromUtf8(program.readLine()).trimmed();
    }

    /// Whether one copy is left in the end, and stays.
    bool isOneLeft() const {
        const auto running = [this] {
            return std::ranges::count_if(copies_, [](const auto& copy) {
                copy->waitForFinished(0);
                return copy->state() == QProcess::Running;
            });
        };
        waitFor([&] { return running() <= 1; }, kPatience);
        letPass(300);
        return running() == 1;
    }

    PrivateBus bus_;
    QDBusConnection connection_ = bus_.connect();
    QTemporaryDir config_;
    std::vector<std::unique_ptr<QProcess>> copies_;
};

} // namespace

TEST_F(RunningCopiesTest, TheNewestIsLeftAndOneOfManyStartedAtOnce) {
    for (int i = 0; i < 4; ++i)
        ASSERT_EQ(line(start()), u"ready");
    EXPECT_TRUE(isOneLeft());
    EXPECT_EQ(copies_[0]->exitCode(), 0);
    QStringList names = connection_.interface()->registeredServiceNames().value().filter(kIdentifier);
    names.sort();
    const qint64 newest = copies_.back()->processId();
    EXPECT_EQ(names, (QStringList{kIdentifier, u"%1.pid%2"_s.arg(kIdentifier).arg(newest)}));
    EXPECT_EQ(connection_.interface()->servicePid(kIdentifier).value(), newest);
    for (int i = 0; i < 10; ++i)
        start();
    EXPECT_TRUE(isOneLeft());
}

TEST_F(RunningCopiesTest, AStartEndsOlderCopiesAndTakesTheirPlaceAtLogin) {
    const QString background = kIdentifier + u".backgrounder.v203"_s;
    SilentObject older;
    connection_.registerVirtualObject(u"/com"_s, &older, QDBusConnection::SubPath);
    connection_.registerService(kIdentifier + u".pid1"_s);
    connection_.registerService(background + u".pid2"_s);
    const QString entry = config_.filePath(u"autostart/old.desktop"_s);
    writeFile(entry, "[Desktop Entry]\nType=Application\nExec=/opt/lumivane-0.9/moon\n");
    ASSERT_EQ(line(start()), u"ready");
    EXPECT_FALSE(QFileInfo::exists(entry));
    ASSERT_TRUE(waitFor([&] { return older.asked.size() == 2; }));
    for (const auto& [told, path, interface] :
         {std::tuple{older.asked[0], u"/com/corvanta/Lumivane/backgrounder/v203"_s, background},
          {older.asked[1], u"/com/corvanta/Lumivane"_s, kIdentifier}}) {
        EXPECT_EQ(told.path(), path);
        EXPECT_EQ(told.interface() + u' ' + told.member(), interface + u" Quit"_s);
    }
}

TEST_F(RunningCopiesTest, AWarningAtTheStartKeepsNoOlderCopyAlive) {
    QProcess& copy = start({});
    ASSERT_EQ(line(copy), u"warning");
    connection_.interface()->registerService(kIdentifier, QDBusConnectionInterface::ReplaceExistingService);
    EXPECT_EQ(line(copy), u"not set") << "the newer copy starts at login";
    EXPECT_TRUE(copy.waitForFinished(kPatience));
}

TEST_F(RunningCopiesTest, AnswersTheDesktopAndOnlyANewerCopy) {
    QProcess& copy = start();
    ASSERT_EQ(line(copy), u"ready");
    const QString desktop = u"org.freedesktop.Application"_s;
    const QVariantMap data{{u"activation-token"_s, u"token-1"_s}};
    const QVariant none{QVariantList()};
    using Row = std::tuple<QString, const char*, QVariantList, bool, QString>;
    for (const auto& [interface, method, arguments, isAnswered, told] : {
             Row{desktop, "Open", {QStringList{u"file:///a"_s}, data}, true, u"raise token-1"_s},
             Row{desktop, "ActivateAction", {u"show"_s, none, data}, true, u"raise token-1"_s},
             Row{desktop, "ActivateAction", {u"dance"_s, none, data}, false, {}},
             Row{desktop, "Activate", {u"no map"_s}, false, {}},
             Row{kIdentifier, "Quit", {}, false, {}}, // this is the newest copy
             Row{desktop, "Activate", {QVariantMap()}, true, u"raise"_s},
             Row{desktop, "ActivateAction", {u"quit"_s, none, data}, true, {}},
         }) {
        const QDBusMessage answer = PrivateBus::call(connection_, kIdentifier, u"/com/corvanta/Lumivane"_s,
                                                     interface, method, arguments);
        EXPECT_EQ(answer.type() == QDBusMessage::ReplyMessage, isAnswered) << method;
        if (!told.isEmpty()) {
            EXPECT_EQ(line(copy), told) << method;
        }
    }
    EXPECT_TRUE(copy.waitForFinished(kPatience));
    EXPECT_EQ(copy.exitCode(), 0);
}
