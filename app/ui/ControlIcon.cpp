// SPDX-License-Identifier: MIT
#include "app/ui/ControlIcon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <cmath>
#include <numbers>

namespace {

/// All symbols are drawn on a square of this side.
constexpr double kSide = 16.0;

QPainterPath gear() {
    constexpr int kTeeth = 8;
    constexpr double kInner = 4.6;
    constexpr double kOuter = 6.6;
    const QPointF middle(kSide / 2, kSide / 2);
    const auto at = [&](double radius, double teeth) {
        const double angle = teeth * 2.0 * std::numbers::pi / kTeeth;
        return middle + radius * QPointF(std::cos(angle), std::sin(angle));
    };
    QPainterPath path;
    path.moveTo(at(kInner, -0.28));
    for (int tooth = 0; tooth < kTeeth; ++tooth) {
        path.lineTo(at(kOuter, tooth - 0.16));
        path.lineTo(at(kOuter, tooth + 0.16));
        path.lineTo(at(kInner, tooth + 0.28));
        path.lineTo(at(kInner, tooth + 0.72));
    }
    path.closeSubpath();
    path.addEllipse(middle, 2.0, 2.0);
    return path;
}

void draw(QPainter& painter, ControlIcon::Symbol symbol, const QColor& colour) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (symbol) {
    case ControlIcon::Symbol::Gear:
        painter.fillPath(gear(), colour);
        break;
    case ControlIcon::Symbol::UtilityWindow:
        painter.drawRoundedRect(QRectF(3, 3.5, 10, 9), 1, 1);
        painter.fillRect(QRectF(3, 3.5, 10, 2.6), colour);
        break;
    case ControlIcon::Symbol::Hide:
        painter.drawLine(QPointF(4.5, 4.5), QPointF(11.5, 11.5));
        painter.drawLine(QPointF(11.5, 4.5), QPointF(4.5, 11.5));
        break;
    }
}

class SymbolEngine : public QIconEngine {
public:
    explicit SymbolEngine(ControlIcon::Symbol symbol) : symbol_(symbol) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->save();
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kSide, rect.height() / kSide);
        draw(*painter, symbol_, QApplication::palette().color(group, QPalette::ButtonText));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap map(size);
        map.fill(Qt::transparent);
        QPainter painter(&map);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return map;
    }

    QIconEngine* clone() const override { return new SymbolEngine(symbol_); }

private:
    ControlIcon::Symbol symbol_;
};

} // namespace

QIcon ControlIcon::icon(Symbol symbol) {
    return QIcon(new SymbolEngine(symbol));
}
