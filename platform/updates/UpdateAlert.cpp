// SPDX-License-Identifier: MIT
#include "platform/updates/UpdateAlert.h"

#include "platform/bundle/Bundle.h"
#include "platform/layouts/Mnemonics.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int kIconSize = 64;
constexpr int kTextWidth = 380;
constexpr int kLeastNotesHeight = 90;
constexpr QSize kSizeWithNotes(540, 380);

QString localized(const char* key) {
    return Bundle::main().localizedString(key);
}

QString programName() {
    return Bundle::main().infoString(QStringLiteral("CFBundleName"));
}

QIcon programIcon() {
    const QIcon icon = QApplication::windowIcon();
    return icon.isNull() ? QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation) : icon;
}

/// One for each FetchFailure, in their order.
constexpr std::array kFailures{
    QT_TRANSLATE_NOOP("Lumivane", "This copy of %1 does not know where to look for updates."),
    QT_TRANSLATE_NOOP("Lumivane", "%1 can't look for updates, because the program curl is not installed."),
    QT_TRANSLATE_NOOP("Lumivane",
                      "%1 can't look for updates, because this system has no secure connections."),
    QT_TRANSLATE_NOOP("Lumivane", "The update server can't be reached; please check the network connection."),
    QT_TRANSLATE_NOOP("Lumivane",
                      "The update server could not prove its identity, so it was not asked for updates."),
    QT_TRANSLATE_NOOP("Lumivane",
                      "The update server refers to an insecure address, which was not asked for updates."),
    QT_TRANSLATE_NOOP("Lumivane", "The update server takes too long to answer; please try again later."),
    QT_TRANSLATE_NOOP("Lumivane", "The update server's answer can't be understood; please try again later."),
};

QLabel* addLabel(QVBoxLayout* layout, const QString& text, const char* name) {
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(kTextWidth);
    layout->addWidget(label);
    return label;
}

} // namespace

UpdateAlert::UpdateAlert(const QIcon& icon, const QString& headline, const QString& sentence)
    : texts_(new QVBoxLayout), buttons_(new QDialogButtonBox) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(localized(QT_TRANSLATE_NOOP("Lumivane", "Software Update")));

    auto* picture = new QLabel;
    picture->setPixmap(icon.pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
    QLabel* head = addLabel(texts_, headline, "headline");
    QFont bold = head->font();
    bold.setBold(true);
    head->setFont(bold);
    addLabel(texts_, sentence, "sentence");
    texts_->setSpacing(6);
    texts_->addStretch();

    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addLayout(texts_, 1);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(16, 16, 16, 16);
    whole->setSpacing(16);
    whole->addLayout(row, 1);
    whole->addWidget(buttons_);
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

UpdateAlert* UpdateAlert::updateAvailable(const AppcastItem& item, const QString& currentVersion) {
    auto* alert = new UpdateAlert(
        programIcon(),
        localized(QT_TRANSLATE_NOOP("Lumivane", "A new version of %1 is available!")).arg(programName()),
        localized(QT_TRANSLATE_NOOP("Lumivane", "%1 %2 is now available (you have %3)."))
            .arg(programName(), item.version, currentVersion));
    if (!item.notes.isEmpty())
        alert->addNotes(item.title, item.notes);
    auto* later = alert->buttons_->addButton(localized(QT_TRANSLATE_NOOP("Lumivane", "&Remind Me Later")),
                                             QDialogButtonBox::RejectRole);
    later->setObjectName(QStringLiteral("remindLater"));
    // Of all roles this one stands apart from the two answers that do no harm.
    auto* skip = alert->buttons_->addButton(localized(QT_TRANSLATE_NOOP("Lumivane", "&Skip This Version")),
                                            QDialogButtonBox::ResetRole);
    skip->setObjectName(QStringLiteral("skip"));
    connect(skip, &QPushButton::clicked, alert, [alert] { alert->done(Skip); });
    if (item.page.isEmpty()) {
        later->setDefault(true);
        return alert;
    }
    auto* learn = alert->buttons_->addButton(localized(QT_TRANSLATE_NOOP("Lumivane", "&Learn More...")),
                                             QDialogButtonBox::AcceptRole);
    learn->setObjectName(QStringLiteral("learnMore"));
    learn->setToolTip(item.page.toDisplayString());
    learn->setDefault(true);
    learn->setFocus();
    return alert;
}

UpdateAlert* UpdateAlert::upToDate(const QString& currentVersion) {
    auto* alert = new UpdateAlert(
        programIcon(), localized(QT_TRANSLATE_NOOP("Lumivane", "You're up to date!")),
        localized(QT_TRANSLATE_NOOP("Lumivane", "%1 %2 is currently the newest version available."))
            .arg(programName(), currentVersion));
    alert->buttons_->addButton(QDialogButtonBox::Ok);
    return alert;
}

UpdateAlert* UpdateAlert::checkFailed(FetchFailure reason) {
    QString sentence = localized(kFailures.at(static_cast<std::size_t>(reason)));
    return failure(sentence.replace(QStringLiteral("%1"), programName()));
}

UpdateAlert* UpdateAlert::pageNotOpened(const QUrl& page) {
    return failure(localized(QT_TRANSLATE_NOOP("Lumivane", "No browser could be opened for the page %1."))
                       .arg(page.toDisplayString()));
}

UpdateAlert* UpdateAlert::failure(const QString& sentence) {
    auto* alert = new UpdateAlert(QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning),
                                  localized(QT_TRANSLATE_NOOP("Lumivane", "Update Error!")), sentence);
    alert->buttons_->addButton(QDialogButtonBox::Ok);
    return alert;
}

void UpdateAlert::addNotes(const QString& title, const QString& notes) {
    const QString shown = title.isEmpty() ? localized(QT_TRANSLATE_NOOP("Lumivane", "Release &Notes:"))
                                          : QString(title).replace(u'&', QStringLiteral("&&"));
    texts_->addSpacing(8);
    QLabel* label = addLabel(texts_, shown, "title");
    auto* box = new QPlainTextEdit(notes);
    box->setObjectName(QStringLiteral("notes"));
    box->setReadOnly(true);
    box->setTabChangesFocus(true);
    box->setAccessibleName(withoutMnemonic(shown));
    box->setMinimumHeight(kLeastNotesHeight);
    label->setBuddy(box);
    texts_->addWidget(box, 1);
    resize(kSizeWithNotes);
}
