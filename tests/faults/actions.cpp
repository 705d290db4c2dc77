#include "actions.h"

#include "exchange/csv_export.h"
#include "exchange/older_database.h"
#include "exchange/watched_folder.h"
#include "mainwindow/guarded.h"
#include "platform/program_lock.h"
#include "records/client_database.h"
#include "settings/envelope_label_settings.h"
#include "settings/other_settings.h"
#include "settings/receipt_layouts.h"

#include <QDir>
#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

Stage::Stage() {
    for (int number = 1; number <= 3; ++number) {
        TwinRec twin = blankTwin();
        twin.Kozl3Sor.set(u"sor %1"_s.arg(number));
        files.store(clientNamed(u"Ügyfél %1"_s.arg(number), number * 100), number);
        files.store(twin, number);
    }
    files.store(SetUlap::factory());
    files.store(SetTerti::factory());
    files.store(SetFveveny::factory());
    files.store(SetIrat2::factory());
    files.store(zeroRecord<boritek>());
    for (const QString& catalogueFile : {u"Jogcimek.dat"_s, u"Jogcimek2.dat"_s, u"Kozlem.dat"_s})
        files.setBytes(catalogueFile, QByteArray("tagdij").leftJustified(25) + QByteArray("napidij").leftJustified(25));
    for (const QString& stranger : {u"olvass.txt"_s, u"nevx.dat.mentes"_s, u"level.~regi"_s, u"Set.dat.bak"_s})
        files.setBytes(stranger, "nem a mienk");
}

namespace {

using Work = Action::Work;

Told toldIf(bool done) { return done ? Told::done : Told::failed; }

const Client anotherClient{clientNamed(u"Új Ügyfél"_s, 999), blankTwin()};

// An action on the client database without a window.
template<class Change>
std::function<Work(Stage&)> onClients(Change change) {
    return [change](Stage& stage) -> Work {
        return [&stage, change] {
            bool done = false;
            return toldIf(guarded(stage.prompts, [&] { done = change(stage.folder()); }) && done);
        };
    };
}

QByteArray csvOf(const QByteArray& name) {
    return name + " 1;;azon;Buda;1024;utca;100;sor\r\n" + name + " 2;;azon;Buda;1024;utca;200;sor\r\n";
}

std::function<Work(Stage&)> import(ImportMode mode) {
    return [mode](Stage& stage) {
        stage.folder().setBytes(u"be.csv"_s, csvOf("Uj"));
        return onClients([mode](const TestFolder& folder) {
            const ImportOutcome outcome = importClients(folder.folder().file(u"be.csv"_s), folder, {mode});
            return outcome.result == ImportOutcome::Result::imported;
        })(stage);
    };
}

TickOutcome tick(const Stage& stage) { return watchTick(stage.folder(), QDateTime::currentDateTime().addSecs(3600)); }

// The last one forgets the file that the one before it has deleted.
void someTicks(Stage& stage) {
    for (int i = 0; i < 3; ++i)
        (void)tick(stage);
}

Work watchedFolder(Stage& stage) {
    QDir(stage.folder().folder().path()).mkdir(u"be"_s);
    stage.folder().setBytes(u"be/uj.csv"_s, csvOf("Uj"));
    updateRecord<Set>(stage.folder(), [&](Set& set) {
        set.chkAutBeolvas = 1;
        set.txtAutBeolvas.set(stage.folder().folder().file(u"be"_s));
    });
    return [&stage] {
        TickOutcome outcome;
        if (!guarded(stage.prompts, [&] { outcome = tick(stage); })) return Told::failed;
        return outcome.isStuck ? Told::partly : toldIf(outcome.result == TickOutcome::Result::imported);
    };
}

Work olderDatabase(Stage& stage) {
    stage.folder().setBytes(u"nevek1.dat"_s, QByteArray("Kiss").leftJustified(125).append(112, '\0').repeated(3));
    return onClients([](const TestFolder& folder) { return convertOlderDatabase(folder) == Conversion::converted; })(
        stage);
}

// A commit that a kill has stopped behind its marker.
Work interruptedCommit(Stage& stage) {
    const TestFolder& folder = stage.folder();
    folder.setBytes(u"nevx.dat"_s, folder.bytes(u"nevek1.dat"_s).first(542));
    folder.setBytes(u"xxkoz.dat"_s, folder.bytes(u"kozl3sor.dat"_s).first(270));
    folder.setBytes(u"csere.kesz"_s, "542 270 \n");
    return [&folder] { return toldIf(finishInterruptedCommit(folder) == Recovery::settled); };
}

std::function<Work(Stage&)> exportTo(const QByteArray& present) {
    return [present](Stage& stage) -> Work {
        if (!present.isEmpty()) stage.folder().setBytes(u"ki.csv"_s, present);
        return [&stage] {
            const QString path = stage.folder().folder().file(u"ki.csv"_s);
            const auto result = exportClients(path, stage.folder()).result;
            return result == ExportOutcome::Result::brokenOff ? Told::partly
                                                              : toldIf(result == ExportOutcome::Result::written);
        };
    };
}

// Nothing told is success, and a list that could not be shown behind it no failure.
Told toldBy(const ScriptedPrompts& prompts) {
    return toldIf(std::all_of(prompts.told.begin(), prompts.told.end(),
                              [](const Message& message) { return message.text.startsWith(u"A művelet megtörtént"); }));
}

Told pressed(ScriptedPrompts& prompts, QAbstractButton& button) {
    prompts.answers.push_back(Answer::yes);
    guarded(prompts, [&] { button.click(); });
    return toldBy(prompts);
}

std::function<Work(Stage&)> setupPage(int setupOldal, const char* button) {
    return [=](Stage& stage) -> Work {
        OpenedSetup& setup = stage.setup.emplace(stage.folder(), setupOldal);
        for (QWidget* box : boxesOf(setup.dialog))
            typeInto(*box, u"7"_s);
        return [&setup, button] { return pressed(setup.prompts, setup.widget<QAbstractButton>(button)); };
    };
}

std::function<Work(Stage&)> catalogue(const char* button) {
    return [button](Stage& stage) -> Work {
        CatalogueDialog& dialog = stage.catalogue.emplace(frmJogcimek, stage.folder(), stage.prompts);
        dialog.findChild<QLineEdit*>(u"txtJogcim1"_s)->setText(u"részlet"_s);
        auto* list = dialog.findChild<QTreeWidget*>(u"ListView1"_s);
        list->setCurrentItem(list->topLevelItem(0));
        return [&] { return pressed(stage.prompts, *dialog.findChild<QAbstractButton*>(QString::fromLatin1(button))); };
    };
}

// With its timer stopped: a tick is an action of its own.
void openWindow(Stage& stage) {
    stage.open();
    stage.find<QTimer>("Timer1").stop();
}

Work deleteButton(Stage& stage) {
    openWindow(stage);
    stage.clickSecondClient();
    return [&stage] {
        const Told told = pressed(stage.prompts, stage.find<QAbstractButton>("cmdDel"));
        // A list that can't be read behind it has a box of its own; the status line says what was done.
        return stage.status().starts_with("Az ügyfél törölve") ? Told::done : told;
    };
}

Work pictureButton(Stage& stage) {
    openWindow(stage);
    stage.folder().setBytes(u"Kepment.dat"_s, QByteArray(283, '\1'));
    return [&stage] { return pressed(stage.prompts, stage.find<QAbstractButton>("cmdKepMentese")); };
}

Work tabClick(Stage& stage) {
    openWindow(stage);
    return [&stage] {
        guarded(stage.prompts, [&] { stage.find<QTabWidget>("SSTab1").setCurrentIndex(3); });
        return toldBy(stage.prompts);
    };
}

Work exitProgram(Stage& stage) {
    openWindow(stage);
    stage.window->storeState();
    stage.window->resize(stage.window->size() - QSize(50, 50));
    stage.find<QAbstractButton>("chkListaSorren").toggle();
    stage.find<QAbstractButton>("chkFKFNev").toggle();
    return [&stage] {
        guarded(stage.prompts, [&] { stage.window->close(); });
        return toldBy(stage.prompts);
    };
}

Work startProgram(Stage& stage) {
    openWindow(stage); // whatever a first start creates
    stage.window.reset();
    return [&stage] {
        guarded(stage.prompts, [&] {
            const ProgramLock lock(stage.folder());
            stage.open();
        });
        return toldBy(stage.prompts);
    };
}

Work pdf(Stage& stage) {
    QtPrintService& printer = stage.printer.emplace(stage.folder(), Devices::pdfOnly);
    const PrintJob job{u"proba"_s, {{{}, {PlacedText{20, 20, {u"Arial CE"_s, 10}, u"próba"_s}}}}};
    return [&printer, job] {
        try {
            printer.deliver(job, 0);
        } catch (const DeviceError&) {
            return Told::failed;
        }
        return Told::done;
    };
}

} // namespace

const std::vector<Action>& actions() {
    static const std::vector<Action> rows = {
        {"add", onClients([](const ProgramFolder& folder) { return addClient(folder, anotherClient) > 0; })},
        {"modify", onClients([](const ProgramFolder& folder) { return modifyClient(folder, 2, anotherClient); })},
        {"remove", onClients([](const ProgramFolder& folder) { return deleteClient(folder, 2); })},
        {"wipe", onClients([](const ProgramFolder& folder) { return wipeClients(folder); })},
        {"importOverwrite", import(ImportMode::overwrite)},
        {"importAppend", import(ImportMode::append)},
        {.name = "tick", .ready = watchedFolder, .again = someTicks},
        {"convert", olderDatabase},
        {"recovery", interruptedCommit},
        {.name = "exportNew", .ready = exportTo({}), .writtenInPlace = "ki.csv"},
        {.name = "exportOver", .ready = exportTo(QByteArray(500, 'x')), .writtenInPlace = "ki.csv"},
        {"yellowCheckPage", setupPage(0, "Command1")},
        {"returnReceiptPage", setupPage(1, "cmdTertiMentes")},
        {"postingReceiptPage", setupPage(2, "cmdFeladovevenyMentes")},
        {"envelopePage", setupPage(3, "cmdBoritekMeretSave_0")},
        {"envelopeSender", setupPage(3, "cmdBoritekFeladoSave")},
        {.name = "documentReceiptPage", .ready = setupPage(4, "cmdIratTertiMentes"), .storesSeveral = true},
        {"pinkCheckPage", setupPage(5, "cmdRCsekkMentes")},
        {"pinkCheckAddressee", setupPage(5, "cmdRcsekkCimzettMent")},
        {.name = "cashOnDeliveryPage", .ready = setupPage(6, "cmdULapMentes"), .storesSeveral = true},
        {"catalogueAdd", catalogue("cmdFelvesz")},
        {"catalogueRemove", catalogue("cmdDel")},
        {"deleteButton", deleteButton},
        {"pictureButton", pictureButton},
        {.name = "tabClick", .ready = tabClick, .leastCalls = 3, .tellsFailures = false},
        {.name = "exit", .ready = exitProgram, .storesSeveral = true},
        {.name = "start", .ready = startProgram, .changesFiles = false},
        {"print", pdf},
    };
    return rows;
}
