// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
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

/// The feed: RSS whose items carry a build and a version on their enclosure, in whichever namespace. It is
/// never trusted.
class Appcast {
public:
    /// The versions in `feed` (UTF-8); nothing, with the reason in `error`, when it is no such feed, declares
    /// a document type, goes beyond the limits of an honest feed or offers no version at all. An item without
    /// a usable build number is passed over.
    static std::optional<Appcast> read(const QByteArray& feed, QString* error);

    /// In the feed's order, never empty.
    const QList<AppcastItem>& items() const { return items_; }

    /// The item with the latest build number, wherever in the feed it stands.
    const AppcastItem& newest() const;

private:
    explicit Appcast(QList<AppcastItem> items) : items_(std::move(items)) {}

    QList<AppcastItem> items_;
};
