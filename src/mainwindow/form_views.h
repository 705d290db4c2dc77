#pragma once

#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/form_view.h"
#include "printing/form_tabs.h"
#include "prompts/prompts.h"

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QPushButton;

// The eight tabs. Each view binds the controls of its form to the tab's values and runs the tab's rules on an edit.
// What concerns the whole window (live search, a settings file to store) leaves through signals.

class YellowCheckView : public FormView {
    Q_OBJECT
public:
    YellowCheckView(YellowCheckTab& tab, const FormContext& context);

    // Lists of the two title boxes and the notice box.
    struct Catalogues {
        QStringList titles, secondTitles, notices;
    };
    void offerCatalogues(Catalogues catalogues);
    // The box that the list is searched by.
    QLineEdit* searchBox() const { return searchBox_; }

Q_SIGNALS:
    // txNev changed while Check1 is ticked.
    void searchWanted(const QString& text);

private:
    void runRule(const QString& name);

    YellowCheckTab& tab_;
    QLineEdit* searchBox_ = nullptr;
    Catalogues catalogues_;
};

class ReturnReceiptView : public FormView {
    Q_OBJECT
public:
    ReturnReceiptView(ReturnReceiptTab& tab, const FormContext& context);

private:
    void placeForVariant();
    ReturnReceiptTab& tab_;
};

class PostingReceiptView : public FormView {
    Q_OBJECT
public:
    PostingReceiptView(PostingReceiptTab& tab, const FormContext& context);
};

class EnvelopeView : public FormView {
    Q_OBJECT
public:
    EnvelopeView(EnvelopeTab& tab, const FormContext& context);

private:
    struct Line {
        QString& value;
        const char* name;
        const char* tooltip;
        bool* bold;
        const char* boldName;
        int gapRows = 0; // empty rows ahead, as on the paper
    };
    void addLines(const char* name, std::initializer_list<Line> lines);
    void buildSide();
    QWidget* buildTypes();
    QWidget* buildSample();
    QWidget* buildPicture();
    void placeForType();
    EnvelopeTab& tab_;
};

// Fonts, sheet and preview of the labels: the one tab without a picture of stationery.
class LabelView : public BoundView {
    Q_OBJECT
public:
    LabelView(LabelTab& tab, const FormContext& context);

    // Fonts that the five boxes offer.
    void offerFonts(const QStringList& fonts);
    // The tab comes into view. The first visit stores the fallbacks of a sheet that was never fixed.
    void openSheet();

Q_SIGNALS:
    void tells(const Message& message);

private:
    QGroupBox* buildFonts();
    QGroupBox* buildSheet();
    QGroupBox* buildGrid();
    QGroupBox* buildPreview();
    QGroupBox* buildCustom();
    void showGrid();
    QFont lineFont(std::size_t line) const;
    void cmbBetutipusok_Click();
    void cmdCimkeMeretRogzites_Click();

    LabelTab& tab_;
    QStringList fonts_;
    QStringList sizes_;
    QGridLayout* cells_ = nullptr;
    LabelGrid shownGrid_;
};

class DocumentReceiptView : public FormView {
    Q_OBJECT
public:
    DocumentReceiptView(DocumentReceiptTab& tab, const FormContext& context);
};

class PinkCheckView : public FormView {
    Q_OBJECT
public:
    PinkCheckView(PinkCheckTab& tab, const FormContext& context);

private:
    void showSide();
    void runRule(const QString& name);
    PinkCheckTab& tab_;
};

class CashOnDeliveryView : public FormView {
    Q_OBJECT
public:
    CashOnDeliveryView(CashOnDeliveryTab& tab, const FormContext& context);

Q_SIGNALS:
    // The tick of the swap changed; the window has the client that it works on.
    void partiesSwapped();

private:
    void showSide();
    CashOnDeliveryTab& tab_;
};
