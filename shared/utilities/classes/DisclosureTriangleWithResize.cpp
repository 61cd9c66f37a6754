// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/DisclosureTriangleWithResize.h"

#include "platform/layouts/SectionBox.h"
#include "platform/preferences/Preferences.h"
#include "platform/windows/Appearance.h"
#include "shared/utilities/classes/values/Exception.h"

#include <QLayout>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QStyleOptionToolButton>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kArrowSide = 12;
constexpr int kGap = 4;
constexpr int kPadding = 2;
constexpr int kLongestAnimation = 150; // milliseconds

/// A view's bottom edge in its superview, measured upwards as the folding rules have it.
int bottomEdge(const QWidget* view) {
    return view->parentWidget()->height() - (view->y() + view->height());
}

QList<QWidget*> viewsIn(const QWidget* superview) {
    return superview->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

DisclosureTriangleWithResize::DisclosureTriangleWithResize(QWidget* parent) : QToolButton(parent) {
    setCheckable(true);
    setChecked(true);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    heightAnimation_.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&heightAnimation_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& height) { setBoxHeight(height.toInt()); });
    connect(&heightAnimation_, &QVariantAnimation::finished, this, [this] {
        if (!isChecked())
            hideFoldedViews();
    });
    connect(this, &QToolButton::clicked, this, [this] {
        if (valueBindingKeyPath_.isEmpty())
            sizeToState();
    });
}

SectionBox* DisclosureTriangleWithResize::boxView() const {
    const QWidget* content = parentWidget();
    auto* box = content ? qobject_cast<SectionBox*>(content->parentWidget()) : nullptr;
    if (!box)
        throw InternalInconsistencyException(QStringLiteral("DisclosureTriangle needs to be in an NSBox."));
    return box;
}

QList<QWidget*> DisclosureTriangleWithResize::viewsInWindow(bool above) const {
    const SectionBox* box = boxView();
    const int edge = bottomEdge(box);
    QList<QWidget*> views;
    for (QWidget* view : viewsIn(box->parentWidget())) {
        if (above ? bottomEdge(view) > edge : bottomEdge(view) < edge)
            views.append(view);
    }
    return views;
}

float DisclosureTriangleWithResize::smallHeight() const {
    const int gapAbove = y();
    const int toBottom = gapAbove + height();
    return static_cast<float>(toBottom + gapAbove) - 2.0F;
}

float DisclosureTriangleWithResize::currentHeight() const {
    return static_cast<float>(boxView()->height());
}

float DisclosureTriangleWithResize::largeHeight() const {
    return superViewExpandedHeight_;
}

void DisclosureTriangleWithResize::changeHeight(float shrinkBy) {
    changeHeight(shrinkBy, animate_);
}

void DisclosureTriangleWithResize::changeHeight(float shrinkBy, bool animated) {
    const int height = boxView()->height();
    const int target = height - static_cast<int>(std::lround(shrinkBy));
    const bool isUnderWay = heightAnimation_.state() == QAbstractAnimation::Running;
    if (animated && isUnderWay && heightAnimation_.endValue() == target)
        return;
    heightAnimation_.stop();
    const int duration = animated && target != height ? animationDuration() : 0;
    if (duration == 0) {
        setBoxHeight(target);
        return;
    }
    heightAnimation_.setDuration(duration);
    heightAnimation_.setStartValue(height);
    heightAnimation_.setEndValue(target);
    heightAnimation_.start();
}

int DisclosureTriangleWithResize::animationDuration() const {
    if (!isVisible() || !Appearance::wantsAnimations())
        return 0;
    return std::min(style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this),
                    kLongestAnimation);
}

void DisclosureTriangleWithResize::setBoxHeight(int height) {
    SectionBox* box = boxView();
    const int by = box->height() - height;
    if (by == 0)
        return;
    QWidget* superview = box->parentWidget();
    for (QWidget* view : viewsInWindow(false))
        view->move(view->x(), view->y() - by);
    box->resize(box->width(), height);
    superview->resize(superview->width(), superview->height() - by);
}

void DisclosureTriangleWithResize::sizeToState() {
    sizeToState(animate_);
}

void DisclosureTriangleWithResize::sizeToState(bool animated) {
    if (isChecked())
        showFoldedViews();
    const float target = isChecked() ? largeHeight() : smallHeight();
    changeHeight(currentHeight() - target, animated);
    if (!isChecked() && heightAnimation_.state() != QAbstractAnimation::Running)
        hideFoldedViews();
}

void DisclosureTriangleWithResize::awakeFromNib() {
    SectionBox* box = boxView();
    superViewExpandedHeight_ = static_cast<float>(box->height());
    if (!valueBindingKeyPath_.isEmpty()) {
        setChecked(Preferences::standard()->boolForKey(valueBindingKeyPath_));
        connect(Preferences::standard(), &Preferences::valueChanged, this,
                &DisclosureTriangleWithResize::observeValue);
    }
    connect(box, &SectionBox::contentSizeHintChanged, this, &DisclosureTriangleWithResize::contentChanged);
    sizeToState();
    animate_ = true;
}

void DisclosureTriangleWithResize::observeValue(const QString& key) {
    if (key != valueBindingKeyPath_)
        return;
    setChecked(Preferences::standard()->boolForKey(key));
    sizeToState();
}

void DisclosureTriangleWithResize::contentChanged() {
    if (isChecked())
        superViewExpandedHeight_ = static_cast<float>(boxView()->sizeHint().height());
    // A longer text must not be cut off even for a moment.
    sizeToState(heightAnimation_.state() == QAbstractAnimation::Running);
}

void DisclosureTriangleWithResize::hideFoldedViews() {
    // What is cut off must not take the keyboard's focus either.
    const auto visibleHeight = static_cast<int>(smallHeight());
    for (QWidget* view : viewsIn(parentWidget())) {
        if (view != this && !view->isHidden() && view->y() >= visibleHeight - 1) {
            view->hide();
            foldedViews_.append(view);
        }
    }
}

void DisclosureTriangleWithResize::showFoldedViews() {
    if (foldedViews_.isEmpty())
        return;
    for (const QPointer<QWidget>& view : std::as_const(foldedViews_)) {
        if (view)
            view->show();
    }
    foldedViews_.clear();
    if (QLayout* layout = parentWidget()->layout())
        layout->activate();
    superViewExpandedHeight_ = static_cast<float>(boxView()->sizeHint().height());
}

QSize DisclosureTriangleWithResize::sizeHint() const {
    const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
    return {kArrowSide + kGap + text + kGap, fontMetrics().height() + 2 * kPadding};
}

void DisclosureTriangleWithResize::paintEvent(QPaintEvent*) {
    // A heading with a triangle, not a button that stands out from the panel.
    QPainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QRect arrow = QStyle::visualRect(layoutDirection(), rect(), QRect(0, 0, kArrowSide, height()));
    const QRect text =
        QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(kArrowSide + kGap, 0, 0, 0));
    QStyleOption triangle = option;
    triangle.rect = QRect(0, 0, kArrowSide, kArrowSide);
    triangle.rect.moveCenter(arrow.center());
    const auto folded = isRightToLeft() ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight;
    style()->drawPrimitive(isChecked() ? QStyle::PE_IndicatorArrowDown : folded, &triangle, &painter, this);
    const bool underlines = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    const int mnemonic = underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    const auto alignment = static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading);
    style()->drawItemText(&painter, text, alignment | mnemonic, option.palette, isEnabled(), this->text(),
                          foregroundRole());
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}
