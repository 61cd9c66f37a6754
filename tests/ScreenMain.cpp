// SPDX-License-Identifier: MIT
#include "tests/TestMain.h"

#include <QApplication>

int main(int argc, char** argv) {
    const TestEnvironment environment;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
