#include "first_paint.h"

#include <QApplication>
#include <QScreen>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(QSize(1240, 711).boundedTo(QGuiApplication::primaryScreen()->availableGeometry().size()));
    EndAtFirstPaint end(window);
    window.show();
    return QApplication::exec();
}
