// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraWindowUtilities.h"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

/// Notes the alpha each time that a window draws itself.
class Window : public QWidget {
public:
    QList<float> alphas;

protected:
    void paintEvent(QPaintEvent*) override { alphas.append(ExtraWindowUtilities::alphaValue(this)); }
};

} // namespace

TEST(ExtraWindowUtilitiesTest, FadesInTenDrawnSteps) {
    Window window;
    ExtraWindowUtilities::setAlphaValue(&window, 0.0F);
    window.show();
    QApplication::processEvents();
    window.alphas.clear();
    ExtraWindowUtilities::fadeShowSynchronous(&window);
    ASSERT_EQ(window.alphas.size(), 10);
    for (int step = 0; step < 10; ++step)
        EXPECT_NEAR(window.alphas[step], 0.1F * static_cast<float>(step + 1), 1e-5F);
    EXPECT_EQ(window.alphas.last(), 1.0F);
    ExtraWindowUtilities::fadeShowSynchronous(&window);
    EXPECT_EQ(window.alphas.size(), 10) << "it is shown already";

    window.alphas.clear();
    ExtraWindowUtilities::fadeHideSynchronous(&window);
    EXPECT_EQ(window.alphas.size(), 10);
    EXPECT_EQ(ExtraWindowUtilities::alphaValue(&window), 0.0F);
    EXPECT_FALSE(window.isVisible());

    window.show();
    ExtraWindowUtilities::fadeHideSynchronous(&window);
    EXPECT_FALSE(window.isVisible()) << "a window without alpha is ordered out too";
}

TEST(ExtraWindowUtilitiesTest, ABorderlessWindowHasNoTitleBar) {
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.show();
    EXPECT_EQ(ExtraWindowUtilities::titleBarHeight(&window), 0.0F);
}
