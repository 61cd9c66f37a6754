// SPDX-License-Identifier: MIT
#pragma once

#include "shared/utilities/classes/values/Exception.h"

#include <QString>

#include <functional>

/// A launch that could not be done: no application is named for the scheme, or it failed to open the address.
class InternetConfigException : public Exception {
public:
    explicit InternetConfigException(const QString& reason);
};

/// Opens a web address or a local web page in the user's browser.
class InternetConfig {
public:
    /// Opens an address. A failure goes to the log alone; only a browser that is gone is told to the user.
    /// Doesn't wait for what it starts.
    static void launchURL(const QString& address);

    /// The application for a scheme such as "http", as a file URL string; empty when the one named can't be
    /// found. Raises an InternetConfigException when none is named.
    QString defaultBrowserForScheme(const QString& scheme);

    /// Opens an address: without a scheme and "://" as "http://…", a local file by the system's choice unless
    /// it is a web page. A given browser (a file URL string) opens whatever it is; an empty one means the
    /// default. Raises an InternetConfigException when no browser is named or the launch fails.
    void launchURL(const QString& urlString, const QString& browser);

    /// Shows an alert with a message and details, and returns when the user has closed it; tests put their
    /// own in its place.
    static std::function<void(const QString& message, const QString& details)> showAlert;

private:
    void browserNotFound(const QString& address, const QString& browser, const QString& scheme);
};
