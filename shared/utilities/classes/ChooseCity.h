// SPDX-License-Identifier: MIT
#pragma once

#include "platform/location/Cities.h"
#include "shared/utilities/classes/DialogOrSheetController.h"

#include <functional>

class QLineEdit;
class QListWidget;
class QPushButton;

/// Asks for one of the system's cities, named in the language of the program's texts and found by typing.
class ChooseCity : public DialogOrSheetController {
    Q_OBJECT

public:
    /// Receives the city that was chosen; a cancelled dialog has none.
    using Completion = std::function<void(const Cities::City& city)>;

    /// Opens the dialog over `window` with the city at that place (degrees, north and east positive) chosen,
    /// if there is one in single precision. Null, with a log line, when the layout can't be loaded.
    static ChooseCity* chooseCity(float latitude, float longitude, QWidget* window, Completion completion);

public Q_SLOTS:
    void okPushed(QObject* sender);
    void cancelPushed(QObject* sender);

protected:
    bool awakeFromNib(QString* error) override;
    void dismissed() override;

    /// The keys that move in the list do so from the search field, too.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ChooseCity() = default;
    void showFound();
    void selectionChanged();

    QLineEdit* search_ = nullptr;
    QListWidget* list_ = nullptr;
    QPushButton* ok_ = nullptr;
    QList<Cities::City> cities_;
    float latitude_ = 0;
    float longitude_ = 0;
    Completion completion_;
};
