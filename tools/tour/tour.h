#pragma once

#include "mainwindow/frmTarlimo.h"
#include "platform/qt_print_service.h"
#include "prompts/prompts.h"

#include <functional>
#include <memory>

class QDialog;

// Answers every prompt as a willing clerk would, and keeps what was shown.
class TourPrompts : public Prompts {
public:
    QString csv;     // what the file dialog answers
    QString target;  // and the one that saves
    int printer = 0; // what the print dialog answers
    QStringList shown;

    void tell(const Message& message) override;
    Answer ask(const Message& message, Answer preset) override;
    QString openFile(const QString& title, const QString& filter) override;
    QString saveFile(const QString& title, const QString& filter) override;
    std::optional<PrinterChoice> choosePrinter(const QStringList& printers, int current,
                                               const QString& summary) override;
};

// The real service, which also keeps the job that it printed last.
class TourPrinting : public QtPrintService {
public:
    explicit TourPrinting(const ProgramFolder& folder) : QtPrintService(folder, Devices::pdfOnly) {}
    PrintJob job;

    void deliver(const PrintJob& delivered, int printer) override {
        QtPrintService::deliver(delivered, printer);
        job = delivered;
    }
};

// Drives the real window through the main road on a fresh program folder: import, click, type, print, batch, setup.
// Screenshots, PDFs and their first pages laid over the drawn stationery go to the results folder. A step that doesn't
// do what it should is counted and told.
class Tour {
public:
    // `results` is made; the program folder is built beside the results as a copy of `delivered`.
    Tour(const QString& delivered, const QString& results);
    // Number of steps that failed.
    int run();

private:
    QString freshFolder(const QString& delivered);
    void check(bool fact, const QString& what);
    void shoot(const QString& name);
    void click(const char* name);
    void clickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void clickClient(int number); // wherever it stands in the list
    void showTab(int tab);
    void type(const char* box, const QString& text);
    void print(const char* button, const QString& form, int pages);
    void keepPdf(const QString& form, int pages);

    void importClients();
    void enterClients();
    void lookUp(const char* box, const QString& text, int row);
    void saveEntry(int number, const QString& name);
    void keepAmounts();
    void walkTabs();
    void layOverStationery(const QString& form, QPointF corner);
    void typeTexts();
    void printForms(const char* button, const QString& what, int pages);
    void selectBatch(int clients);
    void printBatches();
    void printLabels();
    void printPostingList();
    void placePicture();
    void findPicture();
    void dragPicture(QPointF mm);
    void printWithPicture(const char* button, const QString& name, int pages);
    void reopen();
    void inDialog(const std::function<void()>& open, const std::function<void(QDialog&)>& act);
    void openSetup(const std::function<void(QDialog&)>& act);
    void shootDialog(QDialog& dialog, const QString& name);
    void moveSettings();
    void openCatalogues();
    void closeAndReopen();

    void exchangeData(); // exchange_tour.cpp
    void exportAndImport();
    void watchFolder();
    void convertOlderDatabase();
    void choose(const char* menuEntry);

    QString results_;
    ProgramFolder folder_;
    TourPrinting printing_;
    FontBook fonts_;
    TourPrompts prompts_;
    std::unique_ptr<frmTarlimo> window_;
    int failures_ = 0;
};
