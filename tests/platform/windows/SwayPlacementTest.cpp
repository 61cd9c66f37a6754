// SPDX-License-Identifier: MIT
#include "platform/windows/SwayPlacement.h"

#include "tests/TestMain.h"
#include "tests/platform/PrivateBus.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

#include <cstring>

namespace {

constexpr quint32 kWindowEvent = 0x80000003;

QJsonObject node(const QRect& rect, const char* children = "nodes", const QJsonArray& inner = {}) {
    return {{QStringLiteral("rect"), QJsonObject{{QStringLiteral("x"), rect.x()},
                                                 {QStringLiteral("y"), rect.y()},
                                                 {QStringLiteral("width"), rect.width()},
                                                 {QStringLiteral("height"), rect.height()}}},
            {QLatin1String(children), inner}};
}

/// Sway with two screens side by side and a bar at the top of each.
class FakeSway {
public:
    FakeSway() {
        server.listen(folder.filePath(QStringLiteral("sway.sock")));
        QObject::connect(&server, &QLocalServer::newConnection, &server, [this] {
            client = server.nextPendingConnection();
            QObject::connect(client, &QLocalSocket::readyRead, client, [this] { read(); });
        });
    }

    QString address() const { return server.fullServerName(); }
    bool isTalking() const { return client && client->state() == QLocalSocket::ConnectedState; }

    void send(quint32 type, const QByteArray& payload) {
        const auto length = static_cast<quint32>(payload.size());
        QByteArray message("i3-ipc");
        message.append(reinterpret_cast<const char*>(&length), 4)
            .append(reinterpret_cast<const char*>(&type), 4);
        // In pieces, as streams come.
        client->write(message.first(9));
        client->flush();
        client->write(message.sliced(9) + payload);
    }

    /// The program's window comes up, in the middle of the right screen.
    void showWindow(const QSize& size) {
        window = QRect(QPoint(), size);
        window.moveCenter(right.center());
        send(kWindowEvent, R"({"change":"new"})");
    }

    const QRect left{0, 0, 1280, 800};
    const QRect right{1280, 0, 1280, 800};
    QPoint pointer{1300, 14};
    QRect window;
    bool refuses = false;
    QStringList commands;

private:
    void read() {
        received += client->readAll();
        while (received.size() >= 14) {
            quint32 numbers[2];
            std::memcpy(numbers, received.constData() + 6, sizeof numbers);
            if (received.size() < 14 + numbers[0])
                return;
            const QByteArray payload = received.mid(14, numbers[0]);
            received.remove(0, 14 + numbers[0]);
            answer(numbers[1], payload);
        }
    }

    void answer(quint32 type, const QByteArray& payload) {
        switch (type) {
        case 0:
            run(QString::fromUtf8(payload));
            send(0, refuses ? R"([{"success":false,"error":"No matching node."}])" : R"([{"success":true}])");
            break;
        case 2:
            send(2, R"({"success":true})");
            break;
        case 4:
            send(4, QJsonDocument(tree()).toJson());
            break;
        default:
            ADD_FAILURE() << "unknown question " << type;
        }
    }

    void run(const QString& command) {
        commands.append(command);
        const QStringList words = command.split(u' ');
        if (command == u"[con_id=7] move position pointer") {
            window.moveTopLeft(pointer - QPoint(window.width() / 2, window.height() / 2));
            const QRect screen = left.contains(pointer) ? left : right;
            window.moveLeft(std::clamp(window.x(), screen.left(), screen.right() + 1 - window.width()));
            window.moveTop(std::clamp(window.y(), screen.top(), screen.bottom() + 1 - window.height()));
        } else if (command.startsWith(u"[con_id=7] move absolute position")) {
            window.moveTopLeft({words[4].toInt(), words[5].toInt()});
        }
    }

    QJsonObject tree() const {
        QJsonArray outputs;
        for (const QRect& screen : {left, right}) {
            QJsonArray windows;
            for (const auto& [pid, id] :
                 {std::pair<qint64, int>(1, 6), {QCoreApplication::applicationPid(), 7}}) {
                if (window.isNull() || !screen.contains(window.center()))
                    continue;
                QJsonObject here = node(window);
                here.insert(QStringLiteral("pid"), pid);
                here.insert(QStringLiteral("id"), id);
                here.insert(QStringLiteral("name"), QStringLiteral("Moon"));
                windows.append(here);
            }
            const QRect room = screen.marginsRemoved({0, 28, 0, 0});
            outputs.append(node(screen, "nodes", {node(room, "floating_nodes", windows)}));
        }
        return node(left | right, "nodes", outputs);
    }

    QTemporaryDir folder;
    QLocalServer server;
    QLocalSocket* client = nullptr;
    QByteArray received;
};

class SwayPlacementTest : public testing::Test {
protected:
    SwayPlacementTest() {
        panel.setWindowTitle(QStringLiteral("Moon"));
        panel.resize(175, 350);
    }

    FakeSway sway;
    WithEnvironment address{"SWAYSOCK", sway.address().toUtf8()};
    QWidget panel;
    QList<SwayPlacement::Surroundings> told;
    SwayPlacement* const placement = new SwayPlacement(&panel, [this](const SwayPlacement::Surroundings& at) {
        told.append(at);
        return at.available.topLeft() + QPoint(10, static_cast<int>(panel.height() * at.scale));
    });
};

} // namespace

TEST_F(SwayPlacementTest, PlacesTheWindowThatComesUpAndAgainLater) {
    placement->place();
    ASSERT_TRUE(waitFor([&] { return sway.isTalking() && sway.commands.size() == 1; }));
    EXPECT_TRUE(sway.commands[0].startsWith(u"for_window [pid="));
    sway.showWindow({350, 700}); // of a screen scaled by two
    ASSERT_TRUE(waitFor([&] { return !told.isEmpty() && !sway.isTalking(); })) << "no wake-ups afterwards";

    EXPECT_EQ(told[0].pointer, QPoint(1280, 0)) << "the corner that the pointer is near to";
    EXPECT_EQ(told[0].screen, sway.right);
    EXPECT_EQ(told[0].available, QRect(1280, 28, 1280, 772));
    EXPECT_EQ(told[0].scale, 2);
    EXPECT_EQ(sway.window.topLeft(), QPoint(1290, 728));

    panel.resize(175, 100);
    sway.pointer = {100, 400}; // it is elsewhere by now
    placement->place();
    EXPECT_TRUE(waitFor([&] { return sway.window.topLeft() == QPoint(1290, 228); }));
    EXPECT_EQ(told[1].pointer, told[0].pointer);
}

TEST_F(SwayPlacementTest, FindsTheWindowThatIsThereAlreadyOnThePointersScreen) {
    sway.pointer = {640, 400};
    sway.window = QRect(1500, 100, 175, 350);
    placement->place();
    ASSERT_TRUE(waitFor([&] { return !told.isEmpty() && !sway.isTalking(); }));
    EXPECT_EQ(told[0].pointer, QPoint(640, 400));
    EXPECT_EQ(told[0].screen, sway.left);
    EXPECT_EQ(told[0].scale, 1);
}

TEST_F(SwayPlacementTest, ComplainsOfAnswersThatAreNone) {
    const CaughtLog log;
    placement->place();
    ASSERT_TRUE(waitFor([&] { return sway.isTalking(); }));
    sway.send(kWindowEvent, "no JSON");
    sway.refuses = true;
    sway.showWindow({350, 700});
    ASSERT_TRUE(waitFor([&] { return !sway.isTalking(); }));
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines()[0].contains(u"No matching node."));
    EXPECT_TRUE(told.isEmpty());

    const WithEnvironment nowhere("SWAYSOCK", "/nonexistent");
    placement->place();
    EXPECT_EQ(log.lines().size(), 2);
}
