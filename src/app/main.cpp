#include "mainwindow/frmTarlimo.h"
#include "mainwindow/guarded.h"
#include "platform/open_document.h"
#include "platform/qt_print_service.h"
#include "platform/qt_prompts.h"
#include "platform/session_end.h"
#include "platform/start_program.h"
#include "platform/system_information.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

namespace {

// Whatever an event sets off that a file or the memory stops, and that nobody nearer has told of.
class Application : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        bool handled = false;
        guarded(prompts_, [&] { handled = QApplication::notify(receiver, event); });
        return handled;
    }

private:
    QtPrompts prompts_{QString()};
};

} // namespace

int main(int argc, char** argv) {
    Application application(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(TARLIMO_VERSION));
    const ProgramFolder folder(QApplication::applicationDirPath());
    // Words of the toolkit's own (the file dialog's columns), where its translation is installed.
    QTranslator toolkit;
    if (toolkit.load(QStringLiteral("qtbase_hu"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&toolkit);
    QApplication::setWindowIcon(QIcon(folder.file(QStringLiteral("tarlimo.png"))));

    QtPrintService printing(folder);
    QtPrompts prompts(folder.path());
    int result = 1;
    guarded(prompts, [&] {
        frmTarlimo window(folder, {printing, prompts, openDocument, [&printing] { return printing.lastPdf(); },
                                   systemInformationTool(), startProgram});
        onTerminationRequest(&window, [&window] { window.close(); });
        window.show();
        result = QApplication::exec();
    });
    return result;
}
