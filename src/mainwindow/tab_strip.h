#pragma once

#include "mainwindow/tab_rows.h"

#include <QTabWidget>

class EnvelopeView;
class LabelView;
class YellowCheckView;

// SSTab1: the eight tabs with their views. It keeps the number of the tab in view in Set.dat and brings the values of
// the tabs to the screen; the values and what the context names must outlive it.
class TabStrip : public QTabWidget {
    Q_OBJECT
public:
    TabStrip(FormTabs& tabs, const FormContext& context);

    Tab tab() const { return static_cast<Tab>(currentIndex()); }
    const TabRow& row() const { return rowOf(tab()); }
    // The tab of the last run; a number that is none shows the first one.
    void restore(int stored);
    // Fonts that the label tab offers.
    void offerFonts(const QStringList& fonts);
    // The window is active again: the notice and the titles are emptied and their lists filled anew, and the picture
    // of the envelope is read if its file is another one.
    void activate();

    void showValues();
    // The settings record that the tab in view shows, as bytes; empty if it shows none.
    QByteArray shownRecord() const;
    // The tab as a click on it shows it, with that record as it is stored now.
    void reload();
    // To the amount of the form in view, if it has one.
    void focusAmount();
    // To the name box of the yellow check, with the search switched on.
    void startSearch();

Q_SIGNALS:
    // A tab has come into view, or the one in view was clicked.
    void shown(const TabRow& row);
    void searchWanted(const QString& text);
    // Down in the search box.
    void listWanted();
    // A dialog of a tab has closed.
    void dialogClosed();
    // A client has to be clicked before what was tried.
    void clientWanted();
    void said(const QString& text);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void store();

    FormTabs& tabs_;
    FormContext context_;
    std::vector<BoundView*> views_;
    YellowCheckView* yellowCheck_;
    EnvelopeView* envelope_;
    LabelView* labels_;
};
