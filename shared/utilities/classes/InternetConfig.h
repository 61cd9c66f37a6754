// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/InternetConfigManager.h"
#include "platform/foundation/NSException.h"

#include <QString>

#include <functional>
#include <memory>

/// A launch that could not be done: no application is named for the scheme, or it failed to open the address.
class InternetConfigException : public NSException {
public:
    explicit InternetConfigException(const QString& reason);
};

/// Opens a web address or a local web page in the user's browser. An instance serves one launch.
class InternetConfig {
public:
    /// Opens an address under the running application's own signature. A failure goes to the log alone; only
    /// a browser that is gone is told to the user. Doesn't wait for what it starts.
    static void launchURL(const QString& address);

    /// The same with a browser of the caller's choice (a file URL string; empty: the default) and signature.
    static void launchURL(const QString& address, const QString& browser, OSType withSignature);

    /// Nothing when the session can't be opened.
    static std::unique_ptr<InternetConfig> internetConfigWithApplicationSignature(OSType signature);

    ~InternetConfig();
    InternetConfig(const InternetConfig&) = delete;
    InternetConfig& operator=(const InternetConfig&) = delete;

    /// The application for a scheme such as "http", as a file URL string; empty when the one named can't be
    /// found. Raises an InternetConfigException when none is named.
    QString defaultBrowserForScheme(const QString& scheme);

    /// Opens an address: without a scheme and "://" as "http://…", a local file by the system's choice unless
    /// it is a web page. A given browser (a file URL string) opens whatever it is. Raises an
    /// InternetConfigException when no browser is named or the launch fails.
    void launchURL(const QString& urlString, const QString& browser);

    /// Shows an alert with a message and details, and returns when the user has closed it; tests put their
    /// own in its place.
    static std::function<void(const QString& message, const QString& details)> showAlert;

private:
    explicit InternetConfig(ICInstance instance) : instance_(instance) {}
    void launchWithoutBrowser(const QString& address);
    void browserNotFound(const QString& address, const QString& browser, const QString& scheme);

    ICInstance instance_;
};
