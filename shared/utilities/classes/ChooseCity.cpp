// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ChooseCity.h"

#include "platform/bundle/Bundle.h"
#include "platform/layouts/Layout.h"
#include "platform/layouts/Mnemonics.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>

#include <memory>
#include <utility>

namespace {

QString titleOf(const Cities::City& city) {
    if (city.name == city.country)
        return city.name;
    return Bundle::main()
        .localizedString(QT_TRANSLATE_NOOP("Lumivane", "%1, %2"))
        .arg(city.name, city.country);
}

} // namespace

ChooseCity* ChooseCity::chooseCity(float latitude, float longitude, QWidget* window, Completion completion) {
    std::unique_ptr<ChooseCity> dialog(new ChooseCity);
    dialog->latitude_ = latitude;
    dialog->longitude_ = longitude;
    dialog->completion_ = std::move(completion);
    if (!dialog->loadWindow(QStringLiteral("ChooseCity")))
        return nullptr;
    ChooseCity* const shown = dialog.release();
    shown->showOnWindow(window);
    shown->list_->scrollTo(shown->list_->currentIndex(), QAbstractItemView::PositionAtCenter);
    return shown;
}

bool ChooseCity::awakeFromNib(QString* error) {
    QLabel* label = nullptr;
    ok_ = okButton(error);
    if (!ok_ || !Layout::connectOutlet(window(), "searchLabel_", label, error) ||
        !Layout::connectOutlet(window(), "search_", search_, error) ||
        !Layout::connectOutlet(window(), "list_", list_, error))
        return false;
    search_->setAccessibleName(withoutMnemonic(label->text()));
    search_->installEventFilter(this);
    connect(search_, &QLineEdit::textChanged, this, &ChooseCity::showFound);
    connect(list_, &QListWidget::itemSelectionChanged, this, &ChooseCity::selectionChanged);
    connect(list_, &QListWidget::itemDoubleClicked, ok_, &QPushButton::click);
    cities_ = Cities::cities(Bundle::main().language());
    showFound();
    // Wide enough for the longest, whatever is found later.
    list_->setMinimumWidth(list_->sizeHintForColumn(0) + list_->verticalScrollBar()->sizeHint().width() +
                           2 * list_->frameWidth());
    search_->setFocus();
    return true;
}

void ChooseCity::showFound() {
    const QString typed = search_->text();
    QListWidgetItem* chosen = nullptr;
    auto best = Cities::Match::None;
    list_->clear();
    for (const Cities::City& city : std::as_const(cities_)) {
        const auto match = Cities::match(city, typed);
        if (match == Cities::Match::None)
            continue;
        auto* item = new QListWidgetItem(titleOf(city), list_);
        item->setData(Qt::UserRole, QVariant::fromValue(&city));
        const bool isHere = static_cast<float>(city.place.latitude) == latitude_ &&
                            static_cast<float>(city.place.longitude) == longitude_;
        if (typed.isEmpty() ? isHere : match > best) {
            chosen = item;
            best = match;
        }
    }
    list_->setCurrentItem(chosen);
    selectionChanged();
    if (list_->count() == 0) {
        const Bundle& bundle = Bundle::main();
        auto* note = new QListWidgetItem(
            cities_.isEmpty()
                ? bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "The system has no list of cities."))
                : bundle.localizedString(QT_TRANSLATE_NOOP("Lumivane", "No city found.")),
            list_);
        note->setFlags(Qt::ItemIsEnabled); // legible, but nothing to choose
        search_->setAccessibleDescription(note->text());
    }
}

void ChooseCity::selectionChanged() {
    const QList<QListWidgetItem*> selected = list_->selectedItems();
    ok_->setEnabled(!selected.isEmpty());
    // For a screen reader, which stays with the field while its keys move in the list.
    search_->setAccessibleDescription(selected.isEmpty() ? QString() : selected.first()->text());
}

void ChooseCity::okPushed(QObject*) {
    const QListWidgetItem* const chosen = list_->selectedItems().first(); // else OK is disabled
    completion_(*chosen->data(Qt::UserRole).value<const Cities::City*>());
    closeWindow();
}

void ChooseCity::cancelPushed(QObject*) {
    closeWindow();
}

void ChooseCity::dismissed() {
    closeWindow();
}

bool ChooseCity::eventFilter(QObject* watched, QEvent* event) {
    if (watched != search_)
        return DialogOrSheetController::eventFilter(watched, event);
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down && key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return false;
    QCoreApplication::sendEvent(list_, event);
    return true;
}
