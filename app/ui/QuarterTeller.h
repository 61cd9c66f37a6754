// SPDX-License-Identifier: MIT
#pragma once

#include "app/model/Quarters.h"
#include "platform/notifications/Notifications.h"

#include <QObject>

#include <optional>

/// "Tell Me the Quarters": a notification for each quarter, while the user has that switched on.
class QuarterTeller : public QObject {
    Q_OBJECT

public:
    explicit QuarterTeller(QObject* parent = nullptr);

    /// Tells the latest quarter, if it is due (`Quarters::takeDue`). It counts as told even where the desktop
    /// shows no notifications: none are saved up for when it does.
    void tell();

Q_SIGNALS:
    /// The user wants to see the Moon that a notification told of.
    void activated();

private:
    /// The quarter that is due; from now on it is told.
    static std::optional<Quarters::Quarter> takeDue();

    Notifications notifications_;
};
