#include "records/catalogue.h"
#include "settings/envelope_label_settings.h"
#include "settings/other_settings.h"
#include "window_fixture.h"

#include <QDir>
#include <QSplitter>

namespace {

template<class Rec>
Rec filledWith(char byte) {
    Rec record;
    std::memset(static_cast<void*>(&record), byte, sizeof record);
    return record;
}

std::string bytesOf(const auto& record) { return {reinterpret_cast<const char*>(&record), sizeof record}; }

using WindowStart = WindowTest;

TEST_F(WindowStart, FirstStartMakesItsFilesAndNoOthers) {
    QFile::remove(files.folder().file(QStringLiteral("Set.dat")));
    QFile::remove(files.folder().file(QStringLiteral("SetRcsekk.dat")));
    open();
    const QStringList made = QDir(files.folder().path()).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    EXPECT_EQ(made.join(u' ').toStdString(), "Betumeret.dat Betutip.dat boritek.dat CimkeSetup.dat Jogcimek.dat "
                                             "Jogcimek2.dat Kepment.dat Kozlem.dat nevek1.dat nyomtato.txt Set.dat");
    EXPECT_TRUE(files.bytes(QStringLiteral("CimkeSetup.dat")).isEmpty()); // fallbacks are shown only
    EXPECT_EQ(text("txtLeft") + text("txtTop") + text("txtOszlop") + text("txtSor"), "5526");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Tarlimo program - 1.0.0"));
    EXPECT_TRUE(shown("txOsszeg") && ticked("OpOrientacioAllo") && ticked("opAllando_0") && ticked("opPrinter_0"));
}

TEST_F(WindowStart, RememberedControlsComeBack) {
    updateRecord<Set>(files, [](Set& set) {
        set.lbPrintNo = 1;
        set.txtTertiPosta.set(u"Győr 1.");
        set.chkVisszaCimPrint = {1, 0, 1};
        set.txtIratErtesites.set(u"igen");
        set.chkListaSorren = set.chkKepPrint = 1;
        set.opAllando = {false, true};
        set.chkBefAzonMasolasa = set.opPrinter_1 = true;
        set.OpB = 3;
        set.SSTab1Tab = 5;
        set.OpOrientacioFekvo = 1; // stored at exit, but every start begins upright
    });
    updateRecord<boritek>(files, [](boritek& set) { set.chkFKFCim1 = set.chkFKCNev2 = true; });
    updateRecord<Kepment>(files, [](Kepment& set) { set.Left = 440; });
    const QByteArray before = files.bytes(QStringLiteral("Set.dat"));
    openNamed({u"Béla", u"Anna"});
    EXPECT_EQ(files.bytes(QStringLiteral("Set.dat")), before); // restoring stores nothing
    EXPECT_EQ(text("Combo2") + '|' + text("txtTertiPosta") + '|' + text("txtIratErtesites") + '|' + text("lbXpoz"),
              "Masodik|Győr 1.|igen|10");
    expectTicked("chkVisszaCimPrint_0 chkVisszaCimPrint_2 chkListaSorren chkKepPrint opAllando_1 chkBefAzonMasolasa "
                 "opPrinter_1 OpB3 OpOrientacioAllo chkFKFCim1 chkFKCNev2",
                 true);
    expectTicked("chkVisszaCimPrint_1 chkFKFNev", false);
    EXPECT_FALSE(enabled("Combo2"));
    EXPECT_EQ(rows(), "Anna|Béla");
    EXPECT_TRUE(shown("Picture5"));
}

TEST_F(WindowStart, NumbersOutOfRangeSelectNothingElse) {
    const struct {
        std::int16_t printer, tab, envelope;
        const char *device, *page, *option;
    } starts[] = {{0, 0, 0, "Elso", "Picture1", "OpB1"},
                  {2, 7, 2, "PDF fájl", "Picture6", "OpB2"},
                  {3, 8, 4, "", "Picture1", "OpB1"},
                  {-1, -1, -1, "", "Picture1", "OpB1"}};
    for (const auto& start : starts) {
        QFile::remove(files.folder().file(QStringLiteral("nyomtato.txt")));
        updateRecord<Set>(files, [&](Set& set) {
            set.lbPrintNo = start.printer;
            set.SSTab1Tab = start.tab;
            set.OpB = start.envelope;
        });
        open();
        EXPECT_EQ(text("Combo2"), start.device);
        EXPECT_TRUE(shown(start.page)) << start.tab;
        EXPECT_TRUE(ticked(start.option)) << start.envelope;
        window->close();
        EXPECT_EQ(set().lbPrintNo, start.printer); // neither start nor exit picks another one
    }
}

TEST_F(WindowStart, TheChosenPrinterIsFoundByItsName) {
    const auto stored = [&] { return text("Combo2") + ' ' + std::to_string(set().lbPrintNo); };
    updateRecord<Set>(files, [](Set& set) { set.lbPrintNo = 1; });
    open();
    EXPECT_EQ(stored(), "Masodik 1");
    service.names.prepend(QStringLiteral("Uj"));
    open();
    EXPECT_EQ(stored(), "Masodik 2");
    service.names.removeOne(QStringLiteral("Masodik"));
    open();
    EXPECT_EQ(stored(), " -1") << "what has moved to its place is another printer";
    EXPECT_EQ(told(), "Figyelem!|A(z) ''Masodik'' nyomtató nem található,\nválassz másikat!");
    open();
    EXPECT_EQ(told(), "");
    service.names << QStringLiteral("Masodik");
    open();
    EXPECT_EQ(stored(), "Masodik 3");
}

TEST_F(WindowStart, ClientsThatCannotBeReadAreToldAndComeBack) {
    openNamed({u"Anna"});
    const QString path = files.folder().file(QStringLiteral("nevek1.dat"));
    ASSERT_TRUE(QFile::rename(path, path + u'x') && QDir().mkdir(path));
    press("cmdBeolvas");
    EXPECT_EQ(told(), "Hiba|A(z) nevek1.dat fájl nem olvasható, más program használja.\n"
                      "Próbáld újra a Beolvasás gombbal.");
    open();
    EXPECT_NE(told(), "");
    EXPECT_EQ(rows(), "");
    ASSERT_TRUE(QDir().rmdir(path) && QFile::rename(path + u'x', path));
    press("cmdBeolvas");
    EXPECT_EQ(rows(), "Anna");
    EXPECT_EQ(told(), "");
}

TEST_F(WindowStart, ExitStoresItsOwnFieldsAlone) {
    for (const bool keepEntries : {true, false}) {
        open();
        type("txtTertiPosta", QStringLiteral("Pécs 2."));
        type("txtIratErtesites", QStringLiteral("van"));
        for (const char* name : {"chkVisszaCimPrint_1", "chkVisszaCimPrint_2", "chkListaSorren", "OpB2", "chkKepPrint",
                                 "OpOrientacioFekvo", "opAllando_1", "chkBefAzonMasolasa", "opPrinter_1", "chkFKFIrsz"})
            find<QAbstractButton>(name).setChecked(true);
        auto expected = filledWith<Set>('Z'); // what others have stored in the meantime
        expected.chkNyomtatandoKilepes = keepEntries;
        files.store(expected);
        files.store(filledWith<boritek>('Z'));
        window->close();

        if (keepEntries) {
            expected.txtTertiPosta.set(u"Pécs 2.");
            expected.txtIratErtesites.set(u"van");
            expected.chkVisszaCimPrint = {0, 1, 0}; // the last one is never kept
        }
        expected.chkListaSorren = expected.OpOrientacioFekvo = expected.chkKepPrint = 1;
        expected.OpB = 2;
        expected.opAllando = {false, true};
        expected.chkBefAzonMasolasa = expected.opPrinter_1 = true;
        EXPECT_EQ(bytesOf(set()), bytesOf(expected)) << keepEntries;
        auto bold = filledWith<boritek>('Z');
        bold.chkFKFNev = bold.chkFKFCim1 = bold.chkFKFCim2 = false;
        bold.chkFKFIrsz = true;
        bold.chkFKCNev = bold.chkFKCCim1 = bold.chkFKCCim2 = bold.chkFKCIrsz = bold.chkFKCNev2 = false;
        EXPECT_EQ(bytesOf(readRecord<boritek>(files)), bytesOf(bold));
        files.store(Set::factory());
    }
}

TEST_F(WindowStart, MenuAsksBeforeClosingAndTheBoxDoesNot) {
    open();
    press("chkBefAzonMasolasa");
    prompts.answers = {Answer::no, Answer::yes};
    choose("mnuKilep");
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(set().chkBefAzonMasolasa);
    choose("mnuKilep");
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(set().chkBefAzonMasolasa);
    EXPECT_EQ(joined(prompts.asked[0]), " Kilépés |Biztos hogy Befejezed?\n\n");
    open();
    press("chkBefAzonMasolasa");
    window->close();
    EXPECT_EQ(prompts.asked.size(), 2U);
    EXPECT_FALSE(set().chkBefAzonMasolasa);
}

TEST_F(WindowStart, OwnWindowsEmptyNoticeAndTitlesOnReturn) {
    open();
    int entries = 0;
    for (const char* menuEntry : {"mnuSetup", "mnuAbout", "mnuFeladojegyzekSetup"}) {
        for (const char* box : {"Kozlemeny1", "txtJogcim1", "txtJogcim2", "Kozlemeny2"})
            type(box, QStringLiteral("szöveg"));
        choose(menuEntry, [&](const QWidget&) { entries += appendEntry(files, notices, u"szöveg") ? 1 : 0; });
        for (const char* box : {"Kozlemeny1", "txtJogcim1", "txtJogcim2"})
            EXPECT_EQ(text(box), "") << menuEntry << ' ' << box;
        EXPECT_EQ(text("Kozlemeny2"), "szöveg");
        EXPECT_EQ(find<QComboBox>("Kozlemeny1").count(), entries + 1); // an empty one comes first
    }
}

TEST_F(WindowStart, TheWindowComesBackAsItWasArranged) {
    open();
    const int ofDesign = list().columnWidth(0);
    list().setColumnWidth(0, 222);
    auto& splitter = find<QSplitter>("splitter");
    splitter.setSizes({400, 250});
    window->resize(900, 700);
    const QList<int> sizes = splitter.sizes();
    window->close();
    open();
    EXPECT_EQ(window->size(), QSize(900, 700));
    EXPECT_EQ(list().columnWidth(0), 222);
    EXPECT_EQ(find<QSplitter>("splitter").sizes(), sizes);
    window.reset();
    files.setBytes(QStringLiteral("ablak.ini"), QByteArray(200, '\xff'));
    open();
    EXPECT_EQ(list().columnWidth(0), ofDesign);
}

} // namespace
