// SPDX-License-Identifier: MIT
#include "platform/layouts/FieldNote.h"

#include <QAccessible>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <chrono>

namespace {
constexpr std::chrono::seconds kReadingTime{10};
constexpr int kMargin = 4;
} // namespace

void FieldNote::showAt(QLineEdit* field, const QString& text) {
    qDeleteAll(field->window()->findChildren<FieldNote*>());
    auto* note = new FieldNote(field, text);
    note->place();
    note->setVisible(true);
    note->raise();
    QAccessibleEvent alert(note, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

FieldNote::FieldNote(QLineEdit* field, const QString& text) : QLabel(field->parentWidget()), field_(field) {
    setTextFormat(Qt::PlainText);
    setText(text);
    setAccessibleName(text);
    field->setAccessibleDescription(text);
    setFrameShape(QFrame::Box);
    setMargin(kMargin);
    setPalette(QToolTip::palette());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    connect(field, &QLineEdit::textChanged, this, &QObject::deleteLater);
    QTimer::singleShot(kReadingTime, this, &QObject::deleteLater);
}

FieldNote::~FieldNote() {
    if (field_)
        field_->setAccessibleDescription(QString());
}

void FieldNote::place() {
    const QWidget* parent = parentWidget();
    setWordWrap(sizeHint().width() > parent->width());
    const int width = std::min(sizeHint().width(), parent->width());
    resize(width, wordWrap() ? heightForWidth(width) : sizeHint().height());
    const QRect field = field_->geometry();
    const int start = field_->isRightToLeft() ? field.right() + 1 - width : field.left();
    const bool fitsBelow = field.bottom() + 1 + height() <= parent->height();
    move(std::clamp(start, 0, parent->width() - width),
         fitsBelow ? field.bottom() + 1 : std::max(0, field.top() - height()));
}

void FieldNote::mousePressEvent(QMouseEvent*) {
    deleteLater();
}

void FieldNote::hideEvent(QHideEvent*) {
    deleteLater();
}
