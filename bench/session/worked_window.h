#pragma once

#include "../bare_print.h"
#include "../samples.h"
#include "mainwindow/frmTarlimo.h"

#include <QElapsedTimer>

#include <optional>
#include <string_view>

class QProgressBar;
class QTabBar;
class QTreeView;

// The real window, worked as a clerk does. Most acts are timed from the press until all is painted, in seconds.
class WorkedWindow : public QObject {
public:
    explicit WorkedWindow(const ProgramFolder& folder);

    // Does one act of the table below and returns its figure.
    double work(std::string_view act);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    double click();
    double key(); // the mean over the letters of several words
    double tab(); // the slowest of eight, each shown before
    double selectAll();
    double resize();
    double sort();
    double add();
    double remove();
    double batch();  // of all clients, until the file lies on the disk
    double bare();   // the same texts by the bare loop
    double sign();   // until a batch shows the wait cursor
    double cancel(); // of a batch, from a press right after a look at what waits
    double peak();   // MB of memory at the most so far
    double fonts();  // families installed

    template<class Widget>
    Widget& find(const char* name) const;
    template<class Act>
    double untilPainted(Act act);
    void press(const char* button) const;
    void clickRow(int row);
    void prepareBatch();
    void runAndCancel(int permille);

    const ProgramFolder& folder_;
    KeepingService printing_;
    QuietPrompts prompts_;
    frmTarlimo window_;
    QTreeView& list_;
    QTabBar& tabs_;
    QProgressBar& bar_;
    std::optional<BareJob> bareJob_;
    ScratchFolder scratch_;

    int paints_ = 0;
    int row_ = 0;
    QElapsedTimer sincePress_;
    qint64 signMs_ = -1;
    int cancelAt_ = -1; // in thousandths of the bar, -1: never
    QElapsedTimer sinceCancel_;
};
