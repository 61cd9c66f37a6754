// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>

#include <functional>
#include <memory>
#include <optional>

class QJsonDocument;
class QJsonObject;
class QWidget;

/// Puts a floating window to its place under Sway, which shows them in the middle of the screen whatever they
/// ask for, but moves them on a message to its socket. The pointer's place is asked for in the same way,
/// because Wayland doesn't tell it and some bars tell a click's place in their own coordinates.
class SwayPlacement : public QObject {
    Q_OBJECT

public:
    /// What is known of the place, in Sway's coordinates.
    struct Surroundings {
        QPoint pointer; ///< When the window came up. Nearer to a screen's edge than half the window: on the
                        ///< edge.
        QRect screen;
        QRect available; ///< The screen without its bars.
        qreal scale = 1; ///< Sway's units in one of the window's.
    };
    /// The place for the window's upper left corner.
    using Chooser = std::function<QPoint(const Surroundings&)>;

    /// Whether Sway runs the session.
    static bool isThere();

    /// `window`, which is not shown yet, becomes the owner.
    SwayPlacement(QWidget* window, Chooser chooser);
    ~SwayPlacement() override;

    /// Places the window: as soon as it shows, and at once when it does. Without an answer from Sway it stays
    /// where Sway puts it, which is logged.
    void place();

private:
    class Socket;

    enum class State {
        Awaiting,       ///< The window is not there yet.
        GoingToPointer, ///< Sway was told to put it there, which also tells where that is.
        AtPointer,
        Placed,
    };

    void awaitWindow();
    void send(quint32 type, const QString& payload = {});
    void read();
    void receive(quint32 type, const QJsonDocument& message);
    void receiveTree(const QJsonObject& tree);
    void runCommand(const QString& command);
    void commandDone();
    void move();
    void hangUp();
    void giveUp(const QString& reason);

    QWidget* const window_;
    const Chooser chooser_;
    const std::unique_ptr<Socket> socket_;
    QByteArray received_;
    State state_ = State::Awaiting;
    int unanswered_ = 0;
    qint64 identifier_ = 0; ///< Sway's number of the window.
    std::optional<Surroundings> surroundings_;
};
