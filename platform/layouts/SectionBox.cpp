// SPDX-License-Identifier: MIT
#include "platform/layouts/SectionBox.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

SectionBox::SectionBox(QWidget* parent) : QFrame(parent) {
}

QWidget* SectionBox::contentView() const {
    for (QObject* child : children()) {
        if (auto* view = qobject_cast<QWidget*>(child))
            return view;
    }
    return nullptr;
}

QSize SectionBox::sizeHint() const {
    const QWidget* content = contentView();
    const int frame = 2 * frameWidth();
    return (content ? content->sizeHint() : QSize()) + QSize(frame, frame);
}

QSize SectionBox::minimumSizeHint() const {
    const QWidget* content = contentView();
    return {(content ? content->minimumSizeHint().width() : 0) + 2 * frameWidth(), 0};
}

bool SectionBox::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        layOutContent();
        Q_EMIT contentSizeHintChanged();
    }
    return QFrame::event(event);
}

void SectionBox::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    layOutContent();
}

void SectionBox::layOutContent() {
    QWidget* content = contentView();
    if (!content)
        return;
    const QRect inside = contentsRect();
    content->setGeometry(inside.x(), inside.y(), inside.width(),
                         std::max(inside.height(), content->sizeHint().height()));
}

void SectionBox::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    if (y() == 0)
        return;
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.15F);
    QPainter(this).fillRect(0, 0, width(), 1, line);
}
