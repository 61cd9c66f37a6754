// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/MacTypes.h"

#include <QList>
#include <QUrl>

/// Stands for Launch Services: opens items with an application or with the system's choice. Backed by GIO's
/// default applications and desktop entries.

constexpr OSStatus fnfErr = -43;
constexpr OSStatus kLSUnknownErr = -10810;
constexpr OSStatus kLSNotAnApplicationErr = -10811;
constexpr OSStatus kLSApplicationNotFoundErr = -10814;

constexpr std::uint32_t kLSLaunchDefaults = 1;

struct LSLaunchURLSpec {
    QUrl appURL;          ///< file URL of a desktop entry or an executable; empty for the system's choice
    QList<QUrl> itemURLs; ///< what to open; each with a scheme of its own
    std::uint32_t launchFlags = kLSLaunchDefaults; ///< nothing but the defaults has a meaning here
};

/// Opens the items, each in a start of its own, and doesn't wait for what was started. `paramErr` for an item
/// that is no whole address, `fnfErr` for an item or application file that isn't there,
/// `kLSNotAnApplicationErr` for one that can't be started, `kLSApplicationNotFoundErr` when the system has no
/// choice for an item, `kLSUnknownErr` when the start fails. Nothing is opened after the first failure.
OSStatus LSOpenFromURLSpec(const LSLaunchURLSpec& spec);
