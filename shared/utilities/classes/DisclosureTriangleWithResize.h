// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QToolButton>
#include <QVariantAnimation>

class SectionBox;

/// A triangle that folds and unfolds the box it sits in and lets the window follow. It sits in the content
/// view of an SectionBox; the box and the views beside it share one superview, which has no layout of its
/// own. A triangle with a `binding` is tied to that boolean preference: the box follows the preference,
/// wherever a change comes from.
class DisclosureTriangleWithResize : public QToolButton {
    Q_OBJECT
    Q_PROPERTY(QString binding MEMBER valueBindingKeyPath_)

public:
    explicit DisclosureTriangleWithResize(QWidget* parent = nullptr);

    /// The box that the triangle folds. Throws InternalInconsistencyException outside of one.
    SectionBox* boxView() const;

    /// The box's neighbours whose bottom edge lies above (or below) the box's own, in the superview's order.
    QList<QWidget*> viewsInWindow(bool above) const;

    float
    smallHeight() const; ///< of the folded box: down to the triangle's bottom, and the gap above it once more
    float currentHeight() const; ///< of the box as it is
    float largeHeight() const;   ///< of the unfolded box

    /// Shrinks the box by `shrinkBy` (negative: grows), and its superview with it. Top edges stay. After
    /// `awakeFromNib` that is animated, within 150 ms in which this returns at once, where the triangle is on
    /// the screen and the desktop has animations. A further change takes the place of one under way.
    void changeHeight(float shrinkBy);

    /// Brings the box to the height of the triangle's state.
    void sizeToState();

    /// To be called once, when the layout is loaded and the box has its unfolded height: folds the box as the
    /// bound preference says, and follows it from then on.
    void awakeFromNib();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void changeHeight(float shrinkBy, bool animated);
    void sizeToState(bool animated);
    void setBoxHeight(int height);
    int animationDuration() const;
    void observeValue(const QString& key);
    void contentChanged();
    void hideFoldedViews();
    void showFoldedViews();

    float superViewExpandedHeight_ = 0;
    QString valueBindingKeyPath_;
    bool animate_ = false;
    QVariantAnimation heightAnimation_;
    QList<QPointer<QWidget>> foldedViews_;
};
