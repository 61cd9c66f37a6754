// SPDX-License-Identifier: MIT
#pragma once

#include "platform/updates/Appcast.h"
#include "platform/updates/FeedFetcher.h"

#include <QDialog>

class QDialogButtonBox;
class QVBoxLayout;

/// The update framework's dialogs: a newer version, none, a failure. They are not modal, delete themselves
/// when closed, and show everything that came from a feed as plain text. `finished` tells the answer.
class UpdateAlert : public QDialog {
    Q_OBJECT

public:
    enum Answer {
        RemindLater = QDialog::Rejected, ///< also Escape and the window's close button
        LearnMore = QDialog::Accepted,
        Skip,
    };

    /// `item` is newer than the running version, `currentVersion`. "Learn More..." is there when the item has
    /// a page.
    static UpdateAlert* updateAvailable(const AppcastItem& item, const QString& currentVersion);
    static UpdateAlert* upToDate(const QString& currentVersion);
    static UpdateAlert* checkFailed(FetchFailure reason);
    /// For a download page that no program would open.
    static UpdateAlert* pageNotOpened(const QUrl& page);

private:
    UpdateAlert(const QIcon& icon, const QString& headline, const QString& sentence);
    static UpdateAlert* failure(const QString& sentence);
    void addNotes(const QString& title, const QString& notes);

    QVBoxLayout* texts_;
    QDialogButtonBox* buttons_;
};
