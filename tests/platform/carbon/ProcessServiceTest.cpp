// SPDX-License-Identifier: MIT
#include "platform/carbon/ProcessService.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>

#include <csignal>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

namespace {

const QString kIdentifier = QStringLiteral("com.corvanta.Lumivane");
constexpr int kPatience = 20000; // milliseconds

using Program = std::unique_ptr<QProcess>;

/// Copies of the program on a session bus of their own.
class ProcessServiceTest : public testing::Test {
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
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        program->setProcessEnvironment(environment);
        program->start(QCoreApplication::applicationDirPath() + QStringLiteral("/shell_probe"), arguments);
        return program;
    }

    Program startCopy() const { return start({QStringLiteral("copy")}, address_); }

    static QString line(QProcess* program) {
        if (!program->canReadLine())
            program->waitForReadyRead(kPatience);
        return QString::fromUtf8(program->readLine()).trimmed();
    }

    QString ask(const QString& code, int ticks) const {
        const Program asking = start({QStringLiteral("ask"), code, QString::number(ticks)}, address_);
        const QString answer = line(asking.get());
        asking->waitForFinished();
        return answer;
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

    QDBusMessage handleEvent(const QVariant& event) const {
        return call(kIdentifier + QStringLiteral(".AppleEvents"), QStringLiteral("HandleEvent"), {event});
    }

    QString address_;
    std::unique_ptr<QDBusConnection> bus_;

private:
    QProcess daemon_;
};

int countOfRunning(const std::vector<Program>& programs) {
    return static_cast<int>(std::ranges::count_if(programs, [](const Program& program) {
        program->waitForFinished(0);
        return program->state() == QProcess::Running;
    }));
}

/// Whether that many are left in the end, and stay.
bool areLeft(const std::vector<Program>& programs, int count) {
    QElapsedTimer timer;
    timer.start();
    while (countOfRunning(programs) > count && timer.elapsed() < kPatience)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QElapsedTimer longer;
    longer.start();
    while (longer.elapsed() < 300)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return countOfRunning(programs) == count;
}

void stop(const std::vector<Program>& programs) {
    for (const Program& program : programs) {
        program->kill();
        program->waitForFinished();
    }
}

QByteArray flattened(const AppleEvent& event) {
    QByteArray bytes;
    AEFlattenDesc(event, &bytes);
    return bytes;
}

/// The status that a reply to an event carries; noErr when it carries none.
OSStatus statusIn(const QDBusMessage& message) {
    AppleEvent reply;
    EXPECT_EQ(AEUnflattenDesc(message.arguments().value(0).toByteArray(), &reply), noErr);
    OSStatus status = noErr;
    AEGetParamPtr(reply, keyErrorNumber, typeSInt32, &status, sizeof status, nullptr);
    return status;
}

} // namespace

TEST_F(ProcessServiceTest, OfCopiesStartedOneAfterAnotherTheNewestIsLeft) {
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

TEST_F(ProcessServiceTest, OfCopiesStartedAtOnceOneIsLeft) {
    std::vector<Program> copies;
    for (int i = 0; i < 10; ++i)
        copies.push_back(startCopy());
    EXPECT_TRUE(areLeft(copies, 1)) << countOfRunning(copies);
    EXPECT_EQ(names().size(), 2);
    stop(copies);
}

TEST_F(ProcessServiceTest, ADialogAtTheStartKeepsNoCopyAlive) {
    std::vector<Program> copies;
    copies.push_back(start({QStringLiteral("copy"), QStringLiteral("dialog")}, address_));
    ASSERT_EQ(line(copies[0].get()), QStringLiteral("ready"));
    copies.push_back(startCopy());
    EXPECT_EQ(line(copies[0].get()), QStringLiteral("quitting"));
    EXPECT_TRUE(copies[0]->waitForFinished(kPatience));
    EXPECT_TRUE(areLeft(copies, 1));
    stop(copies);
}

TEST_F(ProcessServiceTest, TheDesktopRaisesAndOpens) {
    const Program copy = startCopy();
    ASSERT_EQ(line(copy.get()), QStringLiteral("ready"));
    const QString desktop = QStringLiteral("org.freedesktop.Application");
    const QVariantMap data{{QStringLiteral("activation-token"), QStringLiteral("token-1")}};
    EXPECT_EQ(call(desktop, QStringLiteral("Activate"), {data}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(line(copy.get()), QStringLiteral("raise  token-1"));
    const QStringList addresses{QStringLiteral("file:///a%20b"), QStringLiteral("x:y")};
    EXPECT_EQ(call(desktop, QStringLiteral("Open"), {addresses, QVariantMap()}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(line(copy.get()), QStringLiteral("open file:///a%20b"));
    EXPECT_EQ(call(desktop, QStringLiteral("Activate"), {QStringLiteral("no map")}).type(),
              QDBusMessage::ErrorMessage);
    EXPECT_TRUE(call(QStringLiteral("org.freedesktop.DBus.Introspectable"), QStringLiteral("Introspect"), {})
                    .arguments()
                    .value(0)
                    .toString()
                    .contains(desktop));
    copy->kill();
    copy->waitForFinished();
}

TEST_F(ProcessServiceTest, DamagedEventsAreRefusedAndQuitIsObeyed) {
    const Program copy = startCopy();
    ASSERT_EQ(line(copy.get()), QStringLiteral("ready"));
    AppleEvent quit;
    AECreateAppleEvent(kCoreEventClass, kAEQuitApplication, {}, 0, kAnyTransactionID, &quit);
    for (const QVariant& damaged : {QVariant(QByteArray()), QVariant(flattened(quit).chopped(1)),
                                    QVariant(QString()), QVariant(QByteArray(2 << 20, 'x'))})
        EXPECT_EQ(handleEvent(damaged).type(), QDBusMessage::ErrorMessage);

    EXPECT_EQ(ask(QStringLiteral("none"), 600), QStringLiteral("0 %1").arg(errAEEventNotHandled));
    kill(static_cast<pid_t>(copy->processId()), SIGSTOP);
    EXPECT_EQ(ask(QStringLiteral("none"), 12), QStringLiteral("%1 0").arg(errAETimeout));
    kill(static_cast<pid_t>(copy->processId()), SIGCONT);

    AppleEvent fromOlderCopy = quit;
    AEPutAttributeDesc(&fromOlderCopy, keyOriginalAddressAttr, {});
    EXPECT_EQ(statusIn(handleEvent(flattened(fromOlderCopy))), errAEEventNotHandled);
    EXPECT_EQ(statusIn(handleEvent(flattened(quit))), noErr);
    EXPECT_TRUE(copy->waitForFinished(kPatience));
    EXPECT_EQ(copy->exitCode(), 0);
}

TEST_F(ProcessServiceTest, WithoutABusACopyRunsAlone) {
    std::vector<Program> copies;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 2; ++i) {
        copies.push_back(start({QStringLiteral("copy")}, QStringLiteral("unix:path=/nowhere/at/all")));
        EXPECT_EQ(line(copies.back().get()), QStringLiteral("ready"));
        EXPECT_TRUE(copies.back()->readAllStandardError().contains("No D-Bus session bus"));
    }
    EXPECT_TRUE(areLeft(copies, 2));
    stop(copies);
}
