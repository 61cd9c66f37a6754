// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/ExtraWindowUtilities.h"

#include "tests/TestMain.h"

#include <QApplication>
#include <QWidget>

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
    ExtraWindowUtilities::fadeHideSynchronous(&window);
    EXPECT_FALSE(window.isVisible());
    ASSERT_EQ(window.alphas.size(), 20);
    for (int step = 0; step < 20; ++step)
        EXPECT_NEAR(window.alphas[step], 0.1 * (10 - std::abs(9 - step)), 1e-5) << step;
}
