// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

/// The box of one section: a frame around a content view that shows the upper part of its content view
/// when it is lower than that, as a folded section is, under a hairline that sets it off from what is above.
class SectionBox : public QFrame {
    Q_OBJECT

public:
    explicit SectionBox(QWidget* parent = nullptr);

    /// The view that holds the box's controls: its first child widget.
    QWidget* contentView() const;

    /// The size that shows the whole content view.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The content asks for another size: a longer text, another font.
    void contentSizeHintChanged();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOutContent();
};
