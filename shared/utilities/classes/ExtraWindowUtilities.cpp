// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraWindowUtilities.h"

#include <QGuiApplication>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <thread>

namespace {

constexpr char kAlphaProperty[] = "alphaValue";
constexpr float kStep = 0.1F;
constexpr std::chrono::nanoseconds kPause{100'000};

void step(QWidget* window, float by) {
    ExtraWindowUtilities::setAlphaValue(window, ExtraWindowUtilities::alphaValue(window) + by);
    window->repaint();
    std::this_thread::sleep_for(kPause);
}

} // namespace

float ExtraWindowUtilities::alphaValue(const QWidget* window) {
    const QVariant kept = window->property(kAlphaProperty);
    return kept.isValid() ? kept.toFloat() : 1.0F;
}

void ExtraWindowUtilities::setAlphaValue(QWidget* window, float alpha) {
    const float held = std::clamp(alpha, 0.0F, 1.0F);
    window->setProperty(kAlphaProperty, held);
    // Wayland has no such thing, and Qt would say so at every step.
    if (!QGuiApplication::platformName().startsWith(u"wayland"))
        window->setWindowOpacity(static_cast<double>(held));
}

void ExtraWindowUtilities::fadeShowSynchronous(QWidget* window) {
    while (alphaValue(window) < 1.0F)
        step(window, kStep);
}

void ExtraWindowUtilities::fadeHideSynchronous(QWidget* window) {
    while (alphaValue(window) > 0.0F)
        step(window, -kStep);
    window->hide();
}

float ExtraWindowUtilities::titleBarHeight(const QWidget* window) {
    return static_cast<float>(window->frameGeometry().height() - window->geometry().height());
}
