// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <compare>
#include <optional>

/// Which of two build numbers is the later one: their fields between dots are compared as numbers of any
/// length, a missing field counts as 0, and what follows a field's digits does not count ("1.10" is later
/// than "1.9", "1.0" the same as "1").
std::strong_ordering compareBuildNumbers(QStringView left, QStringView right);

/// One version that a feed offers.
struct AppcastItem {
    QString title;   ///< one line; may be empty
    QString notes;   ///< what is new, plain text; may be empty
    QString build;   ///< digits and dots
    QString version; ///< as people know it; the build number where the feed gives no other
    QUrl page;       ///< where to get it, https; empty when the feed gives no such address
};

/// The item with the latest build number in `feed` (UTF-8), wherever it stands; nothing, with the reason in
/// `error`, when there is none. The feed is RSS whose items carry a build and a version on their enclosure,
/// in whichever namespace. It is never trusted: what is no such feed, declares a document type or goes beyond
/// the limits of an honest feed is refused, and an item without a usable build number is passed over.
std::optional<AppcastItem> newestItem(const QByteArray& feed, QString* error);
