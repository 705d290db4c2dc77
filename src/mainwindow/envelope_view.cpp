#include "controls/named.h"
#include "mainwindow/form_views.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

struct TypeRow {
    EnvelopeType type;
    const char* option;
    const char* caption;
    const char* picture;
    const char* sampleName;
    QSizeF mm;
    QPointF sender, addressee; // corners of the two blocks of lines as drawn, mm
};

const TypeRow types[] = {
    {EnvelopeType::C6,
     "OpB1",
     "C6 normál boríték (162 x 114 mm)",
     "BoritekC6.jpg",
     "C6 Normál boríték",
     {162, 114},
     {8, 8.15},
     {84, 60.05}},
    {EnvelopeType::C5,
     "OpB2",
     "C5 boríték (229 x 162 mm)",
     "BoritekC5.jpg",
     "C5 boríték",
     {229, 162},
     {11.31, 11.52},
     {118.74, 95.06}},
    {EnvelopeType::C56,
     "OpB3",
     "C5/6 csekk boríték (229 x 114 mm)",
     "BoritekC56.jpg",
     "C5/6 csekk boríték",
     {229, 114},
     {11.31, 11.52},
     {118.74, 60.07}},
};

// The blocks on a C6 envelope, mm. The wider ones are drawn larger in proportion, so that a block has the same size on
// the screen whatever the envelope.
constexpr double senderRow = 3.9, addresseeRow = 4.7;
constexpr QSizeF senderBlock(62.5, 4 * senderRow), freeLine(58, senderRow), addresseeBlock(75.4, 7 * addresseeRow);
// Columns of a block, in proportion: the postcode, what the other lines have more, the ticks.
constexpr int columns[] = {210, 490, 54};

constexpr QMargins tight(8, 4, 8, 4); // in the frames at the side

QLabel* label(const char* name) { return named(new QLabel, name); }

const TypeRow& rowOf(EnvelopeType type) { return types[static_cast<int>(type) - 1]; }

} // namespace

EnvelopeView::EnvelopeView(EnvelopeTab& tab, const FormContext& context) : FormView(context, {162, 114}), tab_(tab) {
    onShow([this] {
        const TypeRow& row = rowOf(tab_.type);
        page()->setPicture(QString::fromLatin1(row.picture), row.mm);
    });
    buildLines();
    buildPictureBox();
    buildSide();
}

void EnvelopeView::buildLines() {
    QWidget* sender =
        lines("frameFelado",
              {{tab_.txtBoritekFeladoNev, "txtBoritekFeladoNev", "Feladó neve", &tab_.chkFKFNev, "chkFKFNev"},
               {tab_.txtBoritekFeladoCim1, "txtBoritekFeladoCim1", "Feladó helysége", &tab_.chkFKFCim1, "chkFKFCim1"},
               {tab_.txtBoritekFeladoCim2, "txtBoritekFeladoCim2", "Feladó címe", &tab_.chkFKFCim2, "chkFKFCim2"},
               {tab_.txtBoritekFeladoIrSzam, "txtBoritekFeladoIrSzam", "Feladó irányítószáma", &tab_.chkFKFIrsz,
                "chkFKFIrsz"}});
    QWidget* freeText = bindText(tab_.txtFelado5mezo, "txtFelado5mezo", "Feladó alá szabadon írható szöveg...");
    QWidget* addressee = lines(
        "frameCimzett",
        {{tab_.txtBoritekCimzettNev, "txtBoritekCimzettNev", "Címzett neve", &tab_.chkFKCNev, "chkFKCNev"},
         {tab_.txtBoritekCimzettNev2, "txtBoritekCimzettNev2", "Címzett második neve", &tab_.chkFKCNev2, "chkFKCNev2"},
         {tab_.txtBoritekCimzettCim1, "txtBoritekCimzettCim1", "Címzett helysége", &tab_.chkFKCCim1, "chkFKCCim1",
          true},
         {tab_.txtBoritekCimzettCim2, "txtBoritekCimzettCim2", "Címzett címe", &tab_.chkFKCCim2, "chkFKCCim2"},
         {tab_.txtBoritekCimzettIrSzam, "txtBoritekCimzettIrSzam", "Címzett irányítószáma", &tab_.chkFKCIrsz,
          "chkFKCIrsz", true, true}});
    onShow([this, sender, freeText, addressee] {
        const TypeRow& row = rowOf(tab_.type);
        const double scale = row.mm.width() / types[0].mm.width();
        page()->place(sender, {row.sender, senderBlock * scale}, 2.9 * scale);
        page()->place(freeText, {row.sender + QPointF(0, senderBlock.height() * scale), freeLine * scale}, 2.9 * scale);
        page()->place(addressee, {row.addressee, addresseeBlock * scale}, 3.3 * scale);
        sender->setVisible(tab_.chkFelado);
        addressee->setVisible(tab_.chkCimzett);
    });
}

// A block of text lines at an even distance, each with the tick that makes it bold.
QWidget* EnvelopeView::lines(const char* name, std::initializer_list<Line> lines) {
    auto* block = named(new QWidget, name);
    auto* grid = new QGridLayout(block);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    for (int column = 0; const int width : columns)
        grid->setColumnStretch(column++, width);
    int row = 0;
    for (const Line& line : lines) {
        if (line.newBlock) grid->setRowStretch(row++, 1);
        QLineEdit* text = bindText(line.value, line.name, line.tooltip);
        text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        QAbstractButton* bold = bindCheck(*line.bold, line.boldName, QString(), "Kipipálva félkövér nyomtatás...");
        bold->setAccessibleName(QString::fromUtf8(line.tooltip) + QStringLiteral(" félkövér"));
        bold->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        grid->addWidget(text, row, 0, 1, line.narrow ? 1 : 2);
        grid->addWidget(bold, row, 2);
        grid->setRowStretch(row++, 1);
        onShow([text, &isBold = *line.bold] {
            QFont font; // the weight alone: the size stays that of the page
            font.setBold(isBold);
            text->setFont(font);
        });
    }
    page()->place(block, {});
    return block;
}

// Options, sample and picture controls beside the envelope.
void EnvelopeView::buildSide() {
    auto* side = new QVBoxLayout;
    side->addWidget(buildTypes());
    side->addWidget(buildSample());
    side->setSpacing(4); // all of it fits beside the envelope in a window of the design size
    side->addWidget(bindCheck(tab_.chkFelado, "chkFelado", QStringLiteral("Feladó nyomtatása")));
    side->addWidget(bindCheck(tab_.chkCimzett, "chkCimzett", QStringLiteral("Címzett nyomtatása")));
    side->addWidget(bindCheck(tab_.chkKepPrint, "chkKepPrint", QStringLiteral("Kép nyomtatása")));
    side->addWidget(buildPicture());
    side->addStretch();
    static_cast<QHBoxLayout*>(layout())->addLayout(side);
}

QWidget* EnvelopeView::buildTypes() {
    QGroupBox* box = frame("Frame2", "Boríték típusa");
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(tight);
    column->setSpacing(2);
    for (const TypeRow& row : types)
        column->addWidget(bindOption(
            row.option, QString::fromUtf8(row.caption), [this, &row] { return tab_.type == row.type; },
            [this, &row] {
                tab_.type = row.type;
                showPicturePosition(tab_);
            }));
    return box;
}

QWidget* EnvelopeView::buildSample() {
    QGroupBox* box = frame("Frame4", "Boríték minta");
    auto* sample = named(new QFrame, "BoritekMinta");
    sample->setFrameStyle(QFrame::Box | QFrame::Plain);
    sample->setStyleSheet(QStringLiteral("QFrame#BoritekMinta { background: white; }"));
    QLabel* name = label("Label3");
    QLabel* width = label("lbBoritekSzeles");
    QLabel* height = label("lbBoritekMagas");
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(tight);
    grid->addWidget(sample, 0, 0, 2, 1);
    grid->addWidget(name, 0, 1, 1, 3);
    grid->addWidget(width, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("x")), 1, 2);
    grid->addWidget(height, 1, 3);
    grid->setColumnStretch(3, 1);
    onShow([this, sample, name, width, height] {
        const TypeRow& row = rowOf(tab_.type);
        sample->setFixedSize((row.mm * 10.0 / 15.0).toSize()); // 10 twips a millimetre, 15 twips a pixel
        name->setText(QString::fromUtf8(row.sampleName));
        width->setText(QStringLiteral("%1 mm").arg(row.mm.width()));
        height->setText(QStringLiteral("%1 mm").arg(row.mm.height()));
    });
    return box;
}
