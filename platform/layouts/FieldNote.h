// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPointer>

/// A note at a text field that says why what was typed there is not taken. It stays for some seconds, or
/// until the field changes, the note is clicked or the window is hidden. Unlike a tool tip it outlasts the
/// click or the key that takes the focus elsewhere. As long as it stands it is also the field's accessible
/// description.
class FieldNote : public QLabel {
    Q_OBJECT

public:
    /// Shows `text` under the field, in the place of an earlier note in its window.
    static void showAt(QLineEdit* field, const QString& text);

    ~FieldNote() override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    FieldNote(QLineEdit* field, const QString& text);
    void place();

    const QPointer<QLineEdit> field_;
};
