#include "controls/named.h"
#include "mainwindow/form_views.h"
#include "mainwindow/picture_box.h"
#include "picture/dialogs/picture_browser.h"
#include "prompts/titles.h"
#include "records/record_file.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

// The picture of the envelope tab: its box on the drawn envelope, and what finds, sizes and saves it.

namespace {

void cmdKepMentese_Click(EnvelopeTab& tab, const ProgramFolder& folder, Prompts& prompts) {
    const auto tell = [&](const QString& text) { prompts.tell({Icon::information, titles::attention, text}); };
    bool keepsPath = true;
    const bool stored = updateRecord<Kepment>(folder, [&](Kepment& record) { keepsPath = storePicture(tab, record); });
    if (!keepsPath) return tell(u"A kép útvonala nem menthető, másolja a képet rövidebb nevű mappába!"_s);
    if (!stored) tell(u"A kép nem menthető, a program mappája nem írható!"_s);
}

void HScroll1_Change(EnvelopeTab& tab) { fitPicture(tab); }

} // namespace

QWidget* EnvelopeView::buildPicture() {
    QGroupBox* box = frame("Frame5", "Kép helyzete és mérete (mm)");
    auto* find = bindButton("cmdKepek", u"Kép keresés"_s);
    find->setToolTip(u"Kép keresése saját gépen..."_s);
    afterEdit(find, [this] { cmdKepek_Click(); });
    auto* save = bindButton("cmdKepMentese", u"Kép mentése"_s);
    onEdit(save, tab_, cmdKepMentese_Click);
    QScrollBar* size = bindScroll(tab_.HScroll1, leastScroll, tab_.HScroll1Max, "HScroll1", "A kép mérete");
    size->setSingleStep(10);
    size->setPageStep(50);
    onEdit(size, tab_, HScroll1_Change);

    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(8, 4, 8, 4);
    grid->setVerticalSpacing(3);
    const auto add = [&](int row, int column, const QString& caption, QLabel* value) {
        grid->addWidget(new QLabel(caption), row, column);
        grid->addWidget(value, row, column + 1);
    };
    add(0, 0, u"Bal margó"_s, bindLabel(tab_.lbXpoz, "lbXpoz", "A kép helyzete a bal margótól"));
    add(0, 2, u"Felső margó"_s, bindLabel(tab_.lbYpoz, "lbYpoz", "A kép helyzete a felső margótól."));
    add(1, 0, u"Szélesség"_s, bindLabel(tab_.lbSzeles, "lbSzeles"));
    add(1, 2, u"Magasság"_s, bindLabel(tab_.lbMagas, "lbMagas"));
    grid->addWidget(size, 2, 0, 1, 4);
    grid->addWidget(find, 3, 0, 1, 2);
    grid->addWidget(save, 3, 2, 1, 2);
    grid->addWidget(buildWarning(), 4, 0, 1, 4);
    for (const int column : {1, 3})
        grid->setColumnStretch(column, 1);
    onShow([this, box] { box->setVisible(tab_.chkKepPrint); });
    return box;
}

// Keeps its place while there is nothing to warn of.
QLabel* EnvelopeView::buildWarning() {
    QLabel* warning = bindLabel(tab_.lbFigyelem, "lbFigyelem");
    QFont bold = warning->font();
    bold.setBold(true);
    warning->setFont(bold);
    QSizePolicy policy = warning->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    warning->setSizePolicy(policy);
    onShow([this, warning] { warning->setVisible(!tab_.lbFigyelem.isEmpty()); });
    return warning;
}

// Under the boxes, which stay readable and within reach.
void EnvelopeView::buildPictureBox() {
    auto* picture = new PictureBox(context().folder);
    page()->place(picture, {});
    picture->lower();
    onShow([this, picture] {
        page()->place(picture, pictureOnEnvelope(tab_));
        picture->setPicture(tab_.picture);
        picture->setVisible(tab_.chkKepPrint);
    });
    // The envelope is drawn larger or smaller with the window, so that a step of the mouse is measured on it: a fixed
    // number of twips to the pixel would let the picture run ahead of the pointer.
    const auto inPicture = [this, picture](QPointF at) {
        return twipsOf(tab_, page()->mmAt(picture->mapTo(page(), at))) - tab_.Image3.topLeft();
    };
    const auto act = [this](auto rule) {
        rule();
        showValues();
    };
    connect(picture, &PictureBox::pressed, this,
            [=, this](QPointF at) { act([&] { pressPicture(tab_, inPicture(at)); }); });
    connect(picture, &PictureBox::moved, this,
            [=, this](QPointF at) { act([&] { movePicture(tab_, inPicture(at)); }); });
    connect(picture, &PictureBox::released, this, [=, this] { act([&] { releasePicture(tab_); }); });
    connect(picture, &PictureBox::nudged, this, [=, this](QPoint steps) {
        act([&] {
            pressPicture(tab_, {});
            movePicture(tab_, twipsOf(tab_, steps)); // a millimetre
            releasePicture(tab_);
        });
    });
}

void EnvelopeView::cmdKepek_Click() {
    kep_browse browser(context().folder, context().prompts, window());
    if (browser.exec() == QDialog::Accepted) tab_.kepFajl = browser.kepFajl();
    Q_EMIT browserClosed();
    showFoundPosition(tab_);
    showValues();
}
