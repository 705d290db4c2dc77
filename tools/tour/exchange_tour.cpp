#include "make_sample_older/older_sample.h"
#include "records/client_database.h"
#include "records/windows1250.h"
#include "tour.h"

#include <QAction>
#include <QCheckBox>
#include <QDateTime>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

// What goes out of the program and comes in: an export, a file for the watched folder, a database of the last version.
void Tour::exchangeData() {
    exportAndImport();
    watchFolder();
    convertOlderDatabase();
}

void Tour::choose(const char* menuEntry) {
    window_->menuBar()->findChild<QAction*>(QLatin1String(menuEntry))->trigger();
}

void Tour::exportAndImport() {
    const qint64 clients = clientCount(folder_);
    prompts_.target = prompts_.csv = results_ + u"/ugyfelek.csv"_s;
    QFile::remove(prompts_.target);
    choose("mnuMentCSVbe");
    check(QFile(prompts_.target).size() == clients * 331, u"export: "_s + window_->statusBar()->currentMessage());
    shoot(u"08-export"_s);
    choose("mnuAdatCsvbol");
    RecordFile<ClientRec> records(folder_);
    check(clientCount(folder_) == 2 * clients &&
              records.read(clients).Cim.trimmed() == records.read(2 * clients).Cim.trimmed(),
          u"the exported clients come back"_s);
}

void Tour::watchFolder() {
    const QDir watched(results_ + u"/figyelt"_s);
    watched.mkpath(u"."_s);
    inDialog([this] { choose("mnuAutoBeolvasas"); },
             [&](QDialog& dialog) {
                 shootDialog(dialog, u"09-figyelt-mappa-kikapcsolva"_s);
                 dialog.findChild<QLineEdit*>(u"txtAutBeolvas"_s)->setText(watched.absolutePath());
                 dialog.findChild<QCheckBox*>(u"chkAutBeolvas"_s)->setChecked(true);
                 dialog.findChild<QRadioButton*>(u"opHozzafuzes_1"_s)->setChecked(true);
                 dialog.findChild<QCheckBox*>(u"chkAutoPrint"_s)->setChecked(true);
                 dialog.findChild<QPushButton*>(u"cmdMent"_s)->click();
             });
    inDialog([this] { choose("mnuAutoBeolvasas"); },
             [this](QDialog& dialog) { shootDialog(dialog, u"09-figyelt-mappa"_s); });
    QFile file(watched.filePath(u"mai-csekkek.csv"_s));
    check(file.open(QIODevice::WriteOnly), u"a file is dropped"_s);
    file.write(windows1250::encode(u"Szabó Árpád;;123;Budapest;1024;Fő utca 1.;12500;tagdíj;2026.12.15;végzés\r\n"
                                   "Nagy Olga;;124;Vác;2600;Mező utca 2.;900\r\n"_s));
    file.flush();
    file.setFileTime(QDateTime::currentDateTime().addSecs(-10), QFileDevice::FileModificationTime);
    file.close();
    QMetaObject::invokeMethod(window_->findChild<QTimer*>(u"Timer1"_s), "timeout", Qt::DirectConnection);
    const QString status = window_->statusBar()->currentMessage();
    check(status.startsWith(u"2 oldal kinyomtatva"_s), u"a file in the watched folder: "_s + status);
    check(!file.exists() && clientCount(folder_) == 2, u"it is imported and gone"_s);
    QFile::remove(results_ + u"/figyelt-mappa.pdf"_s);
    check(QFile::copy(printing_.lastPdf(), results_ + u"/figyelt-mappa.pdf"_s), u"figyelt-mappa.pdf"_s);
    shoot(u"09-figyelt-mappa-utan"_s);
}

void Tour::convertOlderDatabase() {
    QFile::remove(folder_.file(u"nevekR.dat"_s));
    QFile older(folder_.file(u"nevek1.dat"_s));
    const QByteArray bytes = olderSample(folder_.file(u"mintaugyfelek.csv"_s));
    check(older.open(QIODevice::WriteOnly) && older.write(bytes) == bytes.size(), u"an older database"_s);
    older.close();
    choose("mnuKonertal");
    check(clientCount(folder_) == 200 && QFile(folder_.file(u"nevekR.dat"_s)).size() == bytes.size(),
          u"conversion: "_s + window_->statusBar()->currentMessage());
    shoot(u"10-konvertalas"_s);
}
