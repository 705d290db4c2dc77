#include "window_fixture.h"

#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

class WatchWindow : public WindowTest {
protected:
    // Three clients, the middle one clicked; the folder is watched with overwriting and printing unless told otherwise.
    void SetUp() override {
        configure(true, 1);
        openNamed({u"Kiss Anna", u"Szűcs Ernő", u"Nagy Béla"});
        clickRow(1);
    }
    void configure(bool overwrites, std::int16_t prints, std::int16_t isOn = 1) const {
        updateRecord<Set>(files, [&](Set& set) {
            set.chkAutBeolvas = isOn;
            set.opHozzafuzes_1 = overwrites;
            set.txtAutBeolvas.set(watched.path());
            set.chkAutoPrint = prints;
        });
    }
    void drop(const QByteArray& bytes) const {
        QFile file(watched.filePath(u"be.csv"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.flush();
        file.setFileTime(QDateTime::currentDateTime().addSecs(-10), QFileDevice::FileModificationTime);
    }
    QTimer& timer() const { return find<QTimer>("Timer1"); }
    void tick() const { QMetaObject::invokeMethod(&timer(), "timeout", Qt::DirectConnection); }
    bool isWaiting() const { return QFile::exists(watched.filePath(u"be.csv"_s)); }
    QTemporaryDir watched;
};

const char twoClients[] = "Tóth Éva;;;;;;900\r\nÁcs Pál;;;;;;1200\r\n";

} // namespace

TEST_F(WatchWindow, ATickImportsAndPrintsWithNobodyAtTheKeys) {
    EXPECT_EQ(timer().interval(), 5000);
    EXPECT_TRUE(timer().isActive());
    EXPECT_TRUE(text("lbFigyelo").starts_with("Figyelt mappa: "));
    drop(twoClients);
    tick();
    EXPECT_EQ(rows(), "Tóth Éva|Ács Pál");
    EXPECT_EQ(service.delivered.size(), 1U);
    EXPECT_EQ(service.delivered.back().job.pages.size(), 2U);
    EXPECT_TRUE(status().starts_with("2 oldal kinyomtatva")) << status();
    EXPECT_NE(find("lbFigyelo").toolTip().toStdString().find("A(z) ''be.csv'' fájlból 2 ügyfél beolvasva."),
              std::string::npos);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(window->rekordszam(), 0); // another one has the number of the client that was held
    EXPECT_FALSE(enabled("cmdDel"));
    EXPECT_FALSE(isWaiting());
    EXPECT_TRUE(timer().isActive());
}

TEST_F(WatchWindow, WhatDoesNotPrintIsTold) {
    const std::string untick = "Figyelem!|Az automatikus nyomtatás beállítás \nablakában az automatikus nyomtatás \n"
                               "nincs kipipálva!";
    const struct {
        bool overwrites;
        std::int16_t prints;
        QByteArray csv;
        std::string told;
        const char* rows;
    } cases[] = {
        {false, 1, "Új Ida;;;;;;900", untick, "Kiss Anna|[Szűcs Ernő]|Nagy Béla|Új Ida"},
        {true, 0, "Új Ida;;;;;;900", untick, "Új Ida"},
        {true, 1, "Új Ida;;;;;;900\nA;;;;;;\nB;;;;;;sok",
         "HIBA|A beolvasott adatokból 2 rekord nem tartalmaz összeget, így nem nyomtatható automatikusan csekk!\n"
         "Ellenőrízd a ''csv'' fájl helyességét.",
         "Új Ida|A|B"},
        {true, 1, "Új Ida;;;;;;900\n\nB", "", "Új Ida"}, // broken off at an empty line
        {true, 1, "", "", "Új Ida"},
    };
    for (const auto& row : cases) {
        configure(row.overwrites, row.prints);
        drop(row.csv);
        tick();
        EXPECT_EQ(told(), row.told);
        EXPECT_EQ(rows(), row.rows);
        EXPECT_TRUE(timer().isActive());
        EXPECT_EQ(window->rekordszam(), row.overwrites ? 0 : 2);
    }
    EXPECT_TRUE(service.delivered.empty());
    EXPECT_EQ(status(), "A(z) ''be.csv'' fájlban nincs ügyfél, az adatbázis nem változott.");
}

// A clerk who is asked about a client, or whose print is running, must not find others behind it.
TEST_F(WatchWindow, NothingIsTakenWhileTheClerkIsAtSomething) {
    drop(twoClients);
    const auto expectWaiting = [this](const char* meanwhile) {
        tick();
        EXPECT_TRUE(isWaiting()) << meanwhile;
    };
    choose("mnuSetup", [&](const QWidget&) { expectWaiting("a dialog"); });
    choose("mnuAutoBeolvasas", [&](const QWidget&) {
        EXPECT_FALSE(timer().isActive());
        expectWaiting("its own dialog");
    });
    QMenu& menu = *window->menuBar()->findChild<QMenu*>();
    menu.popup({});
    expectWaiting("a menu");
    menu.close();
    service.whileDelivering = [&] { expectWaiting("a print"); };
    press("cmdPrint");
    service.whileDelivering = [] {};
    EXPECT_EQ(service.delivered.size(), 1U);
    EXPECT_EQ(rows(), "Kiss Anna|[Szűcs Ernő]|Nagy Béla");
    tick();
    EXPECT_FALSE(isWaiting());
}

TEST_F(WatchWindow, TheTimerStopsWhenWatchingIsOffUntilTheDialogCloses) {
    configure(true, 1, 0);
    drop(twoClients);
    tick();
    EXPECT_FALSE(timer().isActive());
    EXPECT_FALSE(shown("lbFigyelo"));
    EXPECT_TRUE(isWaiting());
    choose("mnuAutoBeolvasas", [](const QWidget&) {});
    EXPECT_TRUE(timer().isActive());

    ASSERT_TRUE(watched.remove());
    configure(true, 1);
    tick();
    EXPECT_TRUE(text("lbFigyelo").ends_with("A figyelt mappa nem található!"));
    EXPECT_TRUE(timer().isActive());
}

TEST_F(WatchWindow, TheDialogStoresItsFourFieldsByItsButtonAlone) {
    const QString missing = QDir::rootPath() + u"nincs ilyen/mappa"_s;
    updateRecord<Set>(files, [&](Set& set) { set.txtAutBeolvas.set(missing); });
    const QByteArray before = files.bytes(u"Set.dat"_s);
    const auto box = [](const QWidget& dialog, const char* name) {
        return dialog.findChild<QAbstractButton*>(QLatin1String(name));
    };
    choose("mnuAutoBeolvasas", [&](const QWidget& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>(u"txtAutBeolvas"_s)->text(), missing);
        EXPECT_TRUE(box(dialog, "chkAutBeolvas")->isChecked() && box(dialog, "opHozzafuzes_1")->isChecked());
        EXPECT_TRUE(box(dialog, "chkAutoPrint")->isChecked());
        box(dialog, "opHozzafuzes_0")->click();
        EXPECT_FALSE(box(dialog, "chkAutoPrint")->isEnabled() || box(dialog, "chkAutoPrint")->isChecked());
        box(dialog, "Command1")->click();
    });
    EXPECT_EQ(files.bytes(u"Set.dat"_s), before);

    choose("mnuAutoBeolvasas", [&](const QWidget& dialog) {
        auto* path = dialog.findChild<QLineEdit*>(u"txtAutBeolvas"_s);
        auto* list = dialog.findChild<QTreeWidget*>(u"Dir1"_s);
        QTest::keyClick(list, Qt::Key_Return);
        QCoreApplication::processEvents();
        EXPECT_EQ(path->text(), QDir::toNativeSeparators(QDir::rootPath())); // the nearest one that is there
        path->setText(u"/日本"_s);
        box(dialog, "cmdMent")->click();
        EXPECT_TRUE(dialog.isVisible());
        path->setText(watched.path());
        box(dialog, "opHozzafuzes_0")->click();
        box(dialog, "cmdMent")->click();
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(told().starts_with("Hiba|A mappa útvonala nem tárolható"));
    EXPECT_EQ(set().txtAutBeolvas.trimmed(), watched.path());
    EXPECT_FALSE(set().opHozzafuzes_1);
    EXPECT_EQ(set().chkAutoPrint, 0);
    EXPECT_EQ(set().chkAutBeolvas, 1);
}
