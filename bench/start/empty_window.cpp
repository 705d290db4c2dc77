#include "first_paint.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    const QLabel letter(QStringLiteral("A"), &window); // loads a font, as any window does
    window.resize(QSize(1240, 711).boundedTo(QGuiApplication::primaryScreen()->availableGeometry().size()));
    EndAtFirstPaint end(window);
    window.show();
    return QApplication::exec();
}
