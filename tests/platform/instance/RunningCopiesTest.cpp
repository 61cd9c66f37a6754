// SPDX-License-Identifier: MIT
#include "tests/Interaction.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

namespace {

const QString kIdentifier = QStringLiteral("com.corvanta.Lumivane");
constexpr int kPatience = 20000; // milliseconds

using Program = std::unique_ptr<QProcess>;

/// Copies of the program on a session bus of their own.
class RunningCopiesTest : public testing::Test {
protected:
    void SetUp() override {
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                       QStringLiteral("--print-address=1")});
        ASSERT_TRUE(daemon_.waitForReadyRead(kPatience)) << "dbus-daemon is needed";
        address_ = QString::fromUtf8(daemon_.readLine().trimmed());
        bus_ = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(address_, address_));
        ASSERT_TRUE(bus_->isConnected());
    }

    void TearDown() override {
        QDBusConnection::disconnectFromBus(address_);
        daemon_.kill();
        daemon_.waitForFinished();
    }

    Program start(const QStringList& arguments, const QString& address) const {
        auto program = std::make_unique<QProcess>();
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), config_.path());
        program->setProcessEnvironment(environment);
        program->start(QCoreApplication::applicationDirPath() + QStringLiteral("/shell_probe"), arguments);
        return program;
    }

    Program startCopy() const { return start({QStringLiteral("warned")}, address_); }

    static QString line(QProcess* program) {
        if (!program->canReadLine())
            program->waitForReadyRead(kPatience);
        return QString::fromUtf8(program->readLine()).trimmed();
    }

    QStringList names() const {
        QStringList names = bus_->interface()->registeredServiceNames().value().filter(kIdentifier);
        names.sort();
        return names;
    }

    QDBusMessage call(const QString& interface, const QString& method, const QVariantList& arguments) const {
        auto message = QDBusMessage::createMethodCall(kIdentifier, QStringLiteral("/com/corvanta/Lumivane"),
                                                      interface, method);
        message.setArguments(arguments);
        return bus_->call(message, QDBus::Block, kPatience);
    }

    QString address_;
    std::unique_ptr<QDBusConnection> bus_;

    QTemporaryDir config_;

private:
    QProcess daemon_;
};

/// What older copies are told.
class OlderCopies : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
        told.append(message.path() + QLatin1Char(' ') + message.interface() + QLatin1Char(' ') +
                    message.member());
        return true;
    }

    QStringList told;
};

int countOfRunning(const std::vector<Program>& programs) {
    return static_cast<int>(std::ranges::count_if(programs, [](const Program& program) {
        program->waitForFinished(0);
        return program->state() == QProcess::Running;
    }));
}

/// Whether that many are left in the end, and stay.
bool areLeft(const std::vector<Program>& programs, int count) {
    waitFor([&] { return countOfRunning(programs) <= count; }, kPatience);
    letPass(300);
    return countOfRunning(programs) == count;
}

void stop(const std::vector<Program>& programs) {
    for (const Program& program : programs) {
        program->kill();
        program->waitForFinished();
    }
}

} // namespace

TEST_F(RunningCopiesTest, OfCopiesStartedOneAfterAnotherTheNewestIsLeft) {
    for (const int count : {2, 10}) {
        std::vector<Program> copies;
        for (int i = 0; i < count; ++i) {
            copies.push_back(startCopy());
            ASSERT_EQ(line(copies.back().get()), QStringLiteral("ready"));
        }
        EXPECT_TRUE(areLeft(copies, 1)) << countOfRunning(copies) << " of " << count;
        ASSERT_EQ(copies.back()->state(), QProcess::Running);
        for (int i = 0; i < count - 1; ++i) {
            EXPECT_EQ(copies[i]->exitStatus(), QProcess::NormalExit);
            EXPECT_EQ(copies[i]->exitCode(), 0);
        }
        const qint64 newest = copies.back()->processId();
        EXPECT_EQ(names(),
                  (QStringList{kIdentifier, QStringLiteral("%1.pid%2").arg(kIdentifier).arg(newest)}));
        EXPECT_EQ(bus_->interface()->servicePid(kIdentifier).value(), newest);
        stop(copies);
    }
}

TEST_F(RunningCopiesTest, OfCopiesStartedAtOnceOneIsLeft) {
    std::vector<Program> copies;
    for (int i = 0; i < 10; ++i)
        copies.push_back(startCopy());
    EXPECT_TRUE(areLeft(copies, 1)) << countOfRunning(copies);
    EXPECT_EQ(names().size(), 2);
    stop(copies);
}

TEST_F(RunningCopiesTest, AStartEndsOlderCopiesAndTakesTheirPlaceAtLogin) {
    const QString background = kIdentifier + QStringLiteral(".backgrounder.v203");
    OlderCopies older;
    bus_->registerVirtualObject(QStringLiteral("/com"), &older, QDBusConnection::SubPath);
    bus_->registerService(kIdentifier + QStringLiteral(".pid1"));
    bus_->registerService(background + QStringLiteral(".pid2"));
    const QString entry = config_.filePath(QStringLiteral("autostart/old.desktop"));
    QDir(config_.path()).mkpath(QStringLiteral("autostart"));
    QFile file(entry);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Desktop Entry]\nType=Application\nExec=/opt/lumivane-0.9/moon\n");
    file.close();

    const Program copy = startCopy();
    ASSERT_EQ(line(copy.get()), QStringLiteral("ready"));
    EXPECT_FALSE(QFile::exists(entry));
    EXPECT_TRUE(waitFor([&] { return older.told.size() == 2; }));
    EXPECT_EQ(older.told,
              (QStringList{QStringLiteral("/com/corvanta/Lumivane/backgrounder/v203 %1 Quit").arg(background),
                           QStringLiteral("/com/corvanta/Lumivane %1 Quit").arg(kIdentifier)}));
}

TEST_F(RunningCopiesTest, AWarningAtTheStartKeepsNoOlderCopyAlive) {
    const Program copy = start({}, address_);
    ASSERT_EQ(line(copy.get()), QStringLiteral("warning"));
    bus_->interface()->registerService(kIdentifier, QDBusConnectionInterface::ReplaceExistingService);
    EXPECT_EQ(line(copy.get()), QStringLiteral("not set")) << "the newer copy starts at login";
    EXPECT_TRUE(copy->waitForFinished(kPatience));
}

TEST_F(RunningCopiesTest, AnswersTheDesktopAndOnlyANewerCopy) {
    const Program copy = startCopy();
    ASSERT_EQ(line(copy.get()), QStringLiteral("ready"));
    const QString desktop = QStringLiteral("org.freedesktop.Application");
    const QVariantMap data{{QStringLiteral("activation-token"), QStringLiteral("token-1")}};
    const QVariant none{QVariantList()};
    const struct {
        QString interface;
        const char* method;
        QVariantList arguments;
        bool isAnswered;
        QString told;
    } cases[]{
        {desktop, "Activate", {data}, true, QStringLiteral("raise token-1")},
        {desktop,
         "Open",
         {QStringList{QStringLiteral("file:///a")}, data},
         true,
         QStringLiteral("raise token-1")},
        {desktop,
         "ActivateAction",
         {QStringLiteral("show"), none, data},
         true,
         QStringLiteral("raise token-1")},
        {desktop, "ActivateAction", {QStringLiteral("dance"), none, data}, false, {}},
        {desktop, "Activate", {QStringLiteral("no map")}, false, {}},
        {desktop, "Dance", {}, false, {}},
        {kIdentifier, "Quit", {}, false, {}}, // this is the newest copy
        {kIdentifier, "Quit", {QStringLiteral("now")}, false, {}},
        {desktop, "Activate", {QVariantMap()}, true, QStringLiteral("raise")},
        {desktop, "ActivateAction", {QStringLiteral("quit"), none, data}, true, {}},
    };
    for (const auto& [interface, method, arguments, isAnswered, told] : cases) {
        const QDBusMessage answer = call(interface, QLatin1String(method), arguments);
        EXPECT_EQ(answer.type() == QDBusMessage::ReplyMessage, isAnswered)
            << method << qPrintable(answer.errorMessage());
        if (!told.isEmpty()) {
            EXPECT_EQ(line(copy.get()), told) << method;
        }
    }
    EXPECT_TRUE(copy->waitForFinished(kPatience));
    EXPECT_EQ(copy->exitCode(), 0);
}

TEST_F(RunningCopiesTest, WithoutABusACopyRunsAlone) {
    std::vector<Program> copies;
    for (int i = 0; i < 2; ++i) {
        copies.push_back(start({QStringLiteral("warned")}, QStringLiteral("unix:path=/nowhere/at/all")));
        EXPECT_EQ(line(copies.back().get()), QStringLiteral("ready"));
        EXPECT_TRUE(copies.back()->readAllStandardError().contains("No D-Bus session bus"));
    }
    EXPECT_TRUE(areLeft(copies, 2));
    stop(copies);
}
