#include "first_paint.h"

#include "mainwindow/frmTarlimo.h"
#include "platform/open_document.h"
#include "platform/qt_print_service.h"
#include "platform/qt_prompts.h"
#include "platform/session_end.h"
#include "platform/start_program.h"
#include "platform/system_information.h"

#include <QApplication>
#include <QIcon>

// start_window <program folder>
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const ProgramFolder folder(QString::fromLocal8Bit(argv[1]));
    QApplication::setWindowIcon(QIcon(folder.file(QStringLiteral("tarlimo.png"))));

    QtPrintService printing(folder);
    QtPrompts prompts;
    frmTarlimo window(folder, {printing, prompts, openDocument, [&printing] { return printing.lastPdf(); },
                               systemInformationTool(), startProgram});
    onTerminationRequest(&window, [&window] { window.close(); });
    EndAtFirstPaint end(window);
    window.show();
    return QApplication::exec();
}
