// SPDX-License-Identifier: MIT
#include "tests/TestMain.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    const TestEnvironment environment;
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
