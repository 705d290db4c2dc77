#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // No test may need a screen or open a dialog of a desktop's own. On Windows the screenless platform finds no fonts.
#ifndef Q_OS_WIN
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    qputenv("QT_QPA_PLATFORMTHEME", "");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
