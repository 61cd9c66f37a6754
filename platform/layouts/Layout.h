// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

/// Controls with their outlets, actions and bindings, as Qt Designer's layouts lay them out: `NAME.ui` among
/// the bundle's resources, read with `QUiLoader`.
///
/// In a layout an outlet is the object whose `objectName` is the field's name. Three dynamic properties tie a
/// control to the program (strings with `notr="true"`, so that nobody translates them):
/// - `action` (string): the owner's slot `name(QObject* sender)` that a change by the user is sent to, with
///   the control as the sender: a button's click, a combo box's choice, a text field's finished edit when its
///   text was edited, a menu action, a move of a `Slider`. A date field sends each change of its value, one
///   made in code too unless its signals are blocked.
/// - `binding` (string): the preference that the control shows and stores, both ways; the value is stored
///   before the action is sent. A checkable button or action: true or false. A combo box: the integer that is
///   the chosen item's `Qt::UserRole`; items without one store nothing. A text field: a number within the
///   preference's range, as `NumberFormatter` reads and writes it; for anything else the old number comes
///   back, with a note that says why, and no action is sent. A `Slider`: its value.
/// - `tag` (integer): for the slot to read with `tag`.
/// Texts mark the letter to press with Alt by '&'; a button is spoken without it. The mouse wheel changes a
/// control only while that has the focus.
class Layout {
public:
    /// Makes widgets of a class that layouts name and Qt does not know.
    using Factory = std::function<QWidget*(QWidget* parent)>;
    static void registerClass(const QString& className, Factory factory);

    /// Loads the layout `name` and ties it to `owner`, which must live as long as its widgets send actions.
    /// Null, with the reason in `error`, when the file is missing or damaged, a class is unknown, an action
    /// has no slot in `owner`, or a control can't have the action or binding that it is given.
    static std::unique_ptr<QWidget> load(const QString& name, QObject* owner, QString* error);

    /// Sets `outlet` to the object of that name in the layout `root`. When there is none of the type it
    /// becomes null, the reason is added to `error`, and the answer is false: such a layout counts as one
    /// that can't be loaded.
    template <typename T>
    static bool connectOutlet(QWidget* root, const char* objectName, T*& outlet, QString* error) {
        outlet = static_cast<T*>(objectNamed(root, objectName, T::staticMetaObject, error));
        return outlet != nullptr;
    }

    /// The integer that the layout gave a control as its tag, 0 without one.
    static int tag(const QObject* control);

private:
    static QObject* objectNamed(QWidget* root, const char* objectName, const QMetaObject& type,
                                QString* error);
};
