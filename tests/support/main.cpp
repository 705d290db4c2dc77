#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // No test may need a screen or open a dialog of a desktop's own.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "");
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
