#include "controls/colours.h"
#include "mainwindow/frmTarlimo.h"
#include "mainwindow/guarded.h"
#include "platform/open_document.h"
#include "platform/program_lock.h"
#include "platform/qt_print_service.h"
#include "platform/qt_prompts.h"
#include "platform/session_end.h"
#include "platform/start_program.h"
#include "platform/system_information.h"
#include "prompts/titles.h"
#include "records/delivered_files.h"

#include <QApplication>
#include <QFileInfo>
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

bool mayRunBeside(const QString& holder, Prompts& prompts) {
    const QString question = QStringLiteral("A program ezzel a mappával már fut (%1).\n"
                                            "Két példány egyszerre elronthatja egymás adatait!\n\nMégis elindítsam?");
    return prompts.ask({Icon::question, titles::attention, question.arg(holder)}, Answer::no) == Answer::yes;
}

// Before anything reads them. The program runs without, but what it prints lies in the corner of the paper.
void placeSettings(const ProgramFolder& folder, Prompts& prompts) {
    const QStringList failed = placeDelivered(folder.file(deliveredFolder), folder);
    if (failed.isEmpty()) return;
    prompts.tell({Icon::critical, titles::error,
                  QStringLiteral("A kezdő beállításokat nem sikerült a program mappájába másolni.\n"
                                 "Nyomtatás előtt szüntesd meg az okát (írásvédett mappa, betelt lemez),\n"
                                 "és indítsd újra a programot!"),
                  failed.join(u'\n')});
}

} // namespace

int main(int argc, char** argv) {
    Application application(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(TARLIMO_VERSION));
    const ProgramFolder folder(QApplication::applicationDirPath());
    // Words of the toolkit's own (the file dialog's columns), from beside the program or where the system keeps them.
    QTranslator toolkit;
    const QString words = QStringLiteral("qtbase_hu");
    if (toolkit.load(words, folder.path()) || toolkit.load(words, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&toolkit);
    QApplication::setWindowIcon(QIcon(folder.file(QStringLiteral("tarlimo.png"))));

    useOwnSelectionColours();

    QtPrompts prompts(folder.path());
    if (!QFileInfo(folder.path()).isDir()) {
        prompts.tell({Icon::critical, titles::error,
                      QStringLiteral("A program mappájának neve nem kezelhető,\n"
                                     "helyezd át a programot egy másik mappába!")});
        return 1;
    }
    const ProgramLock lock(folder);
    if (!lock.holder().isEmpty() && !mayRunBeside(lock.holder(), prompts)) return 0;
    placeSettings(folder, prompts);

    QtPrintService printing(folder);
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
