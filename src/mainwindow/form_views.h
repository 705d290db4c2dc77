#pragma once

#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/form_view.h"
#include "printing/form_tabs.h"

class QGridLayout;

// The eight tabs. Each view is the table of its form's controls: bound to the tab's values, with the rules that their
// edits run. The live search, which concerns the whole window, leaves through a signal.

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
    Catalogues catalogues_;
    QLineEdit* searchBox_;
};

class ReturnReceiptView : public FormView {
    Q_OBJECT
public:
    ReturnReceiptView(ReturnReceiptTab& tab, const FormContext& context);
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

Q_SIGNALS:
    // The picture browser has closed: the window is active again.
    void browserClosed();

private:
    struct Line {
        QString& value;
        const char* name;
        const char* tooltip;
        bool* bold;
        const char* boldName;
        bool newBlock = false; // an empty row ahead, as on the paper
        bool narrow = false;   // leaves room for what the paper says beside the box
    };
    QWidget* lines(const char* name, std::initializer_list<Line> lines);
    void buildLines();
    void buildSide();
    QWidget* buildTypes();
    QWidget* buildSample();
    QWidget* buildPicture();
    QLabel* buildWarning();
    void buildPictureBox();
    void cmdKepek_Click();
    EnvelopeTab& tab_;
};

// Fonts, sheet and preview of the labels: the one tab without a picture of stationery.
class LabelView : public BoundView {
    Q_OBJECT
public:
    LabelView(LabelTab& tab, const FormContext& context);

    // Fonts that the five boxes offer.
    void offerFonts(const QStringList& fonts);

Q_SIGNALS:
    // A place was ticked while no client was clicked in the list.
    void clientWanted();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QGroupBox* buildFonts();
    QGroupBox* buildSheet();
    QGroupBox* buildGrid();
    QGroupBox* buildPreview();
    QGroupBox* buildCustom();
    void showGrid();
    QFont lineFont(std::size_t line) const;

    LabelTab& tab_;
    const ProgramFolder& folder_;
    QStringList fonts_;
    QStringList sizes_;
    QGridLayout* cells_ = nullptr;
    std::vector<QWidget*> ticks_; // by place
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
};

class CashOnDeliveryView : public FormView {
    Q_OBJECT
public:
    CashOnDeliveryView(CashOnDeliveryTab& tab, const FormContext& context);
};
