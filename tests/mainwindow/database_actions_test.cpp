#include "mainwindow/status_line.h"
#include "window_fixture.h"

namespace {

class DatabaseWindow : public WindowTest {
protected:
    // Three clients, the middle one clicked.
    void SetUp() override {
        openNamed({u"Kiss Anna", u"Szűcs Ernő", u"Nagy Béla"});
        clickRow(1);
    }
    QString csv(const QByteArray& lines) const {
        files.setBytes(QStringLiteral("be.csv"), lines);
        return files.folder().file(QStringLiteral("be.csv"));
    }
    void importFile(const QString& path) {
        prompts.files = {path};
        choose("mnuAdatCsvbol");
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }
    // No held number names a client that may be another one now.
    void expectNobodyHeld() const {
        EXPECT_EQ(window->rekordszam(), 0);
        EXPECT_FALSE(enabled("cmdDel"));
        EXPECT_TRUE(shown("cmdPrint") && !shown("cmdCsPrint")); // nothing is selected either
    }
};

const std::string finished = "Adatbázis importálása|Az adatbázis importálása befejeződött.\n\n"
                             "Ha a listamezőben az adatbázis nem megfelelő,\n"
                             "törölje az adatbázist és ellenőrízze a ''csv'' fájlt,\n"
                             "majd indítsa el újra az importálást.";

TEST_F(DatabaseWindow, DeleteNamesThePersonWhoGoes) {
    for (const char* shownName : {"Szűcs Ernő", "Kiss Anna", ""}) { // typed over on the form
        type("txNev", QString::fromUtf8(shownName));
        prompts.answers = {Answer::no};
        press("cmdDel");
        EXPECT_EQ(prompts.presets.back(), Answer::no);
        EXPECT_EQ(joined(prompts.asked.back()), "Feladó törlése|Biztos mehet \nSZŰCS ERNŐ\n\ntörlése?");
    }
    EXPECT_EQ(rows(), "Kiss Anna|[Szűcs Ernő]|Nagy Béla");
    EXPECT_EQ(window->rekordszam(), 2);
    clickRow(0, Qt::ControlModifier);
    clickRow(1, Qt::ControlModifier);
    clickRow(1, Qt::ControlModifier); // two rows selected, this one held
    EXPECT_TRUE(shown("cmdCsPrint"));
    prompts.answers = {Answer::yes};
    press("cmdDel");
    EXPECT_EQ(rows(), "Kiss Anna|Nagy Béla");
    EXPECT_EQ(rows(2), "     1|     2");
    expectNobodyHeld();
    QStatusBar bar;
    StatusLine line;
    WorkInProgress work(bar, line);
    DatabaseActions actions(files, prompts, work);
    for (const int stale : {0, 3, -1, 32767}) {
        actions.cmdDel_Click(stale, QStringLiteral("Nagy Béla"));
        EXPECT_EQ(told(), "Figyelem!| Nincs kijelölve ügyfél a listáról...");
    }
    EXPECT_EQ(clientCount(files), 2);
    clickRow(1);
    EXPECT_EQ(text("txNev"), "Nagy Béla");
    EXPECT_TRUE(enabled("cmdDel"));
}

TEST_F(DatabaseWindow, WipeEmptiesFilesAndList) {
    clickRow(0, Qt::ControlModifier);
    EXPECT_TRUE(shown("cmdCsPrint"));
    prompts.answers = {Answer::no, Answer::yes};
    choose("mnuAdatbazisTorles");
    EXPECT_EQ(clientCount(files), 3);
    EXPECT_EQ(window->rekordszam(), 1);
    choose("mnuAdatbazisTorles");
    EXPECT_EQ(joined(prompts.asked[1]),
              "Adatbázis törlése|Biztos benne hogy TÖRLI \na teljes adatbázist?\n\nMehet a TÖRLÉS?");
    EXPECT_EQ(files.bytes(QStringLiteral("nevek1.dat")) + files.bytes(QStringLiteral("kozl3sor.dat")), QByteArray());
    EXPECT_EQ(prompts.presets.back(), Answer::no);
    EXPECT_EQ(rows(), "");
    expectNobodyHeld();
}

TEST_F(DatabaseWindow, ImportAppendsOrOverwritesAsTheTitleSays) {
    importFile(csv("Tóth Éva;;;;;;900"));
    EXPECT_EQ(rows(), "Kiss Anna|[Szűcs Ernő]|Nagy Béla|Tóth Éva"); // the client in hand stays picked
    EXPECT_EQ(prompts.fileTitles.back(), QStringLiteral("Importálás - hozzáfűzés"));
    EXPECT_EQ(window->rekordszam(), 2); // those who were there keep their numbers
    EXPECT_TRUE(enabled("cmdDel"));
    EXPECT_EQ(told(), finished);

    updateRecord<Set>(files, [](Set& set) { set.opHozzafuzes_1 = true; });
    QTest::keyClick(&list(), Qt::Key_A, Qt::ControlModifier);
    importFile(csv("Ács Dóra;;;;;;900\r\nBodó Pál;;;;;;12 500 Ft\r\nCsík Rita;;;;;;sok\r\n"));
    EXPECT_EQ(rows(), "Ács Dóra|Bodó Pál|Csík Rita");
    EXPECT_EQ(prompts.fileTitles.back(), QStringLiteral("Importálás - a meglévő adatbázis FELÜLÍRÁSÁVAL"));
    expectNobodyHeld();
    EXPECT_EQ(prompts.told.front().details, QStringLiteral("3. sor, Csík Rita: az összeg nem értelmezhető: ''sok''"));
    EXPECT_EQ(told(), "Adatbázis importálása|A beolvasott adatokból 1 rekord összege nem értelmezhető, ezek összege 0 "
                      "lett.\nEllenőrízd a ''csv'' fájl helyességét.#" +
                          finished);
    clickRow(1);
    EXPECT_EQ(text("txOsszeg"), "12500");
}

TEST_F(DatabaseWindow, ImportThatFailsOrIsRefusedLeavesTheDatabase) {
    updateRecord<Set>(files, [](Set& set) { set.opHozzafuzes_1 = true; });
    const QByteArray before = files.bytes(QStringLiteral("nevek1.dat"));
    const std::pair<QString, const char*> attempts[] = {
        {{}, ""}, // cancelled, as the next one
        {QStringLiteral("*.csv"), ""},
        {files.folder().file(QStringLiteral("nincs.csv")), "Hiba|A fájl nem olvasható, az adatbázis nem változott."},
        {csv({}), "Hiba|A fájl üres, az adatbázis nem változott."}};
    for (const auto& [path, expected] : attempts) {
        importFile(path);
        EXPECT_EQ(told(), expected) << path.toStdString();
        EXPECT_EQ(rows(), "Kiss Anna|[Szűcs Ernő]|Nagy Béla");
        EXPECT_EQ(window->rekordszam(), 2);
        EXPECT_EQ(files.bytes(QStringLiteral("nevek1.dat")), before);
    }
    prompts.answers = {Answer::no};
    importFile(csv(QByteArray("A\r\n").repeated(100000)));
    EXPECT_EQ(prompts.asked.back().text, QStringLiteral("A fájl 100000 sort tartalmaz.\n\nMehet az importálás?"));
    EXPECT_EQ(prompts.presets.back(), Answer::no);
    EXPECT_EQ(files.bytes(QStringLiteral("nevek1.dat")), before);
}

TEST_F(DatabaseWindow, ExportSaysWhatItCameTo) {
    const QString path = files.folder().file(QStringLiteral("ki.csv"));
    const auto save = [&](const QString& to) {
        prompts.files = {to};
        choose("mnuMentCSVbe");
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        return told();
    };
    EXPECT_EQ(save({}) + save(QStringLiteral("*.csv")) + status(), "");
    EXPECT_EQ(save(path), "");
    EXPECT_EQ(status(), "3 ügyfél mentve: " + path.toStdString());
    EXPECT_EQ(files.bytes(QStringLiteral("ki.csv")).size(), 3 * exportLineLength);
    Q_EMIT find<QLabel>("lbAllapot").linkActivated(path);
    EXPECT_EQ(opened, QStringList(path));

    files.setBytes(QStringLiteral("ki.csv"), QByteArray(1000, 'x'));
    EXPECT_EQ(save(path), "Figyelem!|A választott fájl hosszabb volt, a végén régi sorok maradtak!");
    EXPECT_EQ(save(files.folder().file(QStringLiteral("nevek1.dat"))).find(" FIGYELEM |A mentés nem sikerült:"), 0);
    EXPECT_EQ(rows(), "Kiss Anna|[Szűcs Ernő]|Nagy Béla");
}

// The program would read the file back, in fewer columns, and delete it.
TEST_F(DatabaseWindow, ExportIntoTheWatchedFolderAsksFirst) {
    const QString path = files.folder().file(QStringLiteral("ki.csv"));
    for (const bool isOn : {false, true}) {
        updateRecord<Set>(files, [&](Set& set) {
            set.chkAutBeolvas = isOn ? 1 : 0;
            set.txtAutBeolvas.set(files.folder().path() + QStringLiteral("/"));
        });
        prompts.files = {path};
        if (isOn) prompts.answers = {Answer::no};
        choose("mnuMentCSVbe");
        EXPECT_EQ(files.has(QStringLiteral("ki.csv")), !isOn);
        QFile::remove(path);
    }
    EXPECT_EQ(joined(prompts.asked.back()), "Figyelem!|Ez a figyelt mappa, a program a fájlt beolvassa és törli!\n\n"
                                            "Mehet a mentés?");
}

TEST_F(DatabaseWindow, ConversionTellsItsOutcome) {
    const QByteArray older =
        QByteArray("Szenes Iv\xE1n").leftJustified(125) + QByteArray(82, '\0') + QByteArray(30, ' ');
    const std::tuple<QByteArray, Answer, std::string, const char*> attempts[] = {
        {older, Answer::no, "", "Kiss Anna|[Szűcs Ernő]|Nagy Béla"},
        {older, Answer::yes, "", "Szenes Iván"},
        {older, Answer::yes,
         "FIGYELEM!|A ''nevekR.dat'' nevű mentés már létezik!\n"
         "Nevezze át vagy helyezze át, majd indítsa el újra a konvertálást.",
         "Szenes Iván"},
        {files.bytes(QStringLiteral("nevek1.dat")), Answer::yes,
         "FIGYELEM!|A ''nevek1.dat'' már az új formátumú adatbázis,\nezért nem kell konvertálni!", "Szenes Iván"},
        {{}, Answer::yes, "FIGYELEM!|Nincsen elérhető konvertálandó fájl!\n", "Szenes Iván"},
    };
    for (const auto& [database, answer, saysSo, rowsAfter] : attempts) {
        files.setBytes(QStringLiteral("nevek1.dat"), database);
        prompts.answers = {answer};
        choose("mnuKonertal");
        EXPECT_EQ(told(), saysSo);
        EXPECT_EQ(rows(), rowsAfter);
        const bool converted = answer == Answer::yes && saysSo.empty();
        EXPECT_EQ(status(), converted ? "1 ügyfél konvertálva." : ""); // no success of an earlier action
    }
    expectNobodyHeld();
}

TEST_F(DatabaseWindow, TooLargeADatabaseIsToldLast) {
    for (const int count : {32766, 32767}) {
        files.store(clientNamed(QStringLiteral("Kiss Anna")), count);
        importFile(csv("Tóth Éva"));
        EXPECT_EQ(told(), finished + (count == 32766 ? ""
                                                     : "#Figyelem!|Az adatbázis 32767-nél több ügyfelet tartalmaz,\n"
                                                       "a többi a listából nem választható ki!"));
    }
}

} // namespace
