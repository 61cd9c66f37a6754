// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraWindowUtilities.h"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

using namespace ExtraWindowUtilities;

namespace {

/// Notes the alpha each time that a window draws itself.
class Window : public QWidget {
public:
    Window() : QWidget(nullptr, Qt::FramelessWindowHint) {}
    QList<float> alphas;

protected:
    void paintEvent(QPaintEvent*) override { alphas.append(alphaValue(this)); }
};

} // namespace

TEST(ExtraWindowUtilitiesTest, FadesInTenDrawnSteps) {
    Window window;
    setAlphaValue(&window, 0.0F);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(titleBarHeight(&window), 0.0F) << "it has none";
    window.alphas.clear();
    for (int i = 0; i < 2; ++i)
        fadeShowSynchronous(&window); // the second time it is shown already
    ASSERT_EQ(window.alphas.size(), 10);
    for (int step = 0; step < 10; ++step)
        EXPECT_NEAR(window.alphas[step], 0.1F * static_cast<float>(step + 1), 1e-5F);
    fadeHideSynchronous(&window);
    EXPECT_EQ(window.alphas.size(), 20);
    EXPECT_EQ(alphaValue(&window), 0.0F);
    EXPECT_FALSE(window.isVisible());
    window.show();
    fadeHideSynchronous(&window);
    EXPECT_FALSE(window.isVisible()) << "a window without alpha is ordered out too";
}
