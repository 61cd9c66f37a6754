// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

#include <optional>

class QObject;

/// What the panel asks of the program's shell.
class Shell {
public:
    virtual ~Shell() = default;

    /// Whether `url` (nothing: this program) is a login item.
    virtual bool alreadySetToStartup(const std::optional<QUrl>& url) const = 0;

    /// Switches launch at login for `url` (nothing: this program).
    virtual void toggleSetToStartup(const std::optional<QUrl>& url) = 0;

    /// Checks for a new version now.
    virtual void forwardCheckForUpdate(QObject* sender) = 0;
};
