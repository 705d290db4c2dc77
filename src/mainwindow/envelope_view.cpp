#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/envelope_picture.h"
#include "mainwindow/form_views.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace {

struct TypeRow {
    EnvelopeType type;
    const char* option;
    const char* caption;
    const char* picture;
    const char* sampleName;
    QSizeF mm;
    QPointF sender, addressee; // first lines on the picture, mm
};

const TypeRow types[] = {
    {EnvelopeType::C6,
     "OpB1",
     "C6 normál boríték (162 x 114 mm)",
     "BoritekC6.jpg",
     "C6 Normál boríték",
     {162, 114},
     {8, 8},
     {84, 58}},
    {EnvelopeType::C5,
     "OpB2",
     "C5 boríték (229 x 162 mm)",
     "BoritekC5.jpg",
     "C5 boríték",
     {229, 162},
     {10, 10},
     {125, 88}},
    {EnvelopeType::C56,
     "OpB3",
     "C5/6 csekk boríték (229 x 114 mm)",
     "BoritekC56.jpg",
     "C5/6 csekk boríték",
     {229, 114},
     {10, 8},
     {125, 56}},
};

QLabel* label(const char* name) {
    auto* shown = new QLabel;
    shown->setObjectName(QLatin1String(name));
    return shown;
}

const TypeRow& rowOf(EnvelopeType type) { return types[static_cast<int>(type) - 1]; }

} // namespace

EnvelopeView::EnvelopeView(EnvelopeTab& tab, const FormContext& context) : FormView(context, {162, 114}), tab_(tab) {
    page()->setObjectName(QStringLiteral("Frame3"));
    addLines("frameFelado",
             {{tab.txtBoritekFeladoNev, "txtBoritekFeladoNev", "Feladó neve", &tab.chkFKFNev, "chkFKFNev"},
              {tab.txtBoritekFeladoCim1, "txtBoritekFeladoCim1", "Feladó helysége", &tab.chkFKFCim1, "chkFKFCim1"},
              {tab.txtBoritekFeladoCim2, "txtBoritekFeladoCim2", "Feladó címe", &tab.chkFKFCim2, "chkFKFCim2"},
              {tab.txtBoritekFeladoIrSzam, "txtBoritekFeladoIrSzam", "Feladó irányítószáma", &tab.chkFKFIrsz,
               "chkFKFIrsz"}});
    addTexts({{tab.txtFelado5mezo, "txtFelado5mezo", {}, "Feladó alá szabadon írható szöveg..."}});
    addLines(
        "frameCimzett",
        {{tab.txtBoritekCimzettNev, "txtBoritekCimzettNev", "Címzett neve", &tab.chkFKCNev, "chkFKCNev"},
         {tab.txtBoritekCimzettNev2, "txtBoritekCimzettNev2", "Címzett második neve", &tab.chkFKCNev2, "chkFKCNev2"},
         {tab.txtBoritekCimzettCim1, "txtBoritekCimzettCim1", "Címzett helysége", &tab.chkFKCCim1, "chkFKCCim1", 1},
         {tab.txtBoritekCimzettCim2, "txtBoritekCimzettCim2", "Címzett címe", &tab.chkFKCCim2, "chkFKCCim2"},
         {tab.txtBoritekCimzettIrSzam, "txtBoritekCimzettIrSzam", "Címzett irányítószáma", &tab.chkFKCIrsz,
          "chkFKCIrsz", 1}});
    buildSide();
    onShow([this] { placeForType(); });
    connect(this, &FormView::edited, this, [this] { showValues(); });
}

// A block of text lines, each with the tick that makes it bold.
void EnvelopeView::addLines(const char* name, std::initializer_list<Line> lines) {
    auto* block = new QWidget;
    block->setObjectName(QLatin1String(name));
    auto* grid = new QGridLayout(block);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(1);
    for (const Line& line : lines) {
        const int row = grid->rowCount() + line.gapRows;
        QLineEdit* text = bindText(line.value, line.name, line.tooltip);
        text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        QAbstractButton* bold = bindCheck(*line.bold, line.boldName, QString(), "Kipipálva félkövér nyomtatás...");
        bold->setAccessibleName(QString::fromUtf8(line.tooltip) + QStringLiteral(" félkövér"));
        bold->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        grid->addWidget(text, row, 0);
        grid->addWidget(bold, row, 1);
        grid->setRowStretch(row, 1);
        if (line.gapRows > 0) grid->setRowStretch(row - 1, 1);
        onShow([text, &isBold = *line.bold] {
            QFont font; // the weight alone: the size stays that of the page
            font.setBold(isBold);
            text->setFont(font);
        });
    }
    page()->place(block, {});
}

// Options, sample and picture controls beside the envelope.
void EnvelopeView::buildSide() {
    auto* side = new QVBoxLayout;
    side->addWidget(buildTypes());
    side->addWidget(buildSample());
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
    auto* sample = new QFrame;
    sample->setObjectName(QStringLiteral("BoritekMinta"));
    sample->setFrameStyle(QFrame::Box | QFrame::Plain);
    sample->setStyleSheet(QStringLiteral("QFrame#BoritekMinta { background: white; }"));
    QLabel* name = label("Label3");
    QLabel* width = label("lbBoritekSzeles");
    QLabel* height = label("lbBoritekMagas");
    auto* grid = new QGridLayout(box);
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

// The picture is on view where it was saved; choosing, moving and sizing it isn't built yet.
QWidget* EnvelopeView::buildPicture() {
    QGroupBox* box = frame("Frame5", "Kép helyzete és mérete (mm)");
    auto* find = new QPushButton(QStringLiteral("Kép keresés"));
    find->setObjectName(QStringLiteral("cmdKepek"));
    find->setToolTip(QStringLiteral("Kép keresése saját gépen..."));
    auto* save = new QPushButton(QStringLiteral("Kép mentése"));
    save->setObjectName(QStringLiteral("cmdKepMentese"));
    auto* scale = new QScrollBar(Qt::Horizontal);
    scale->setObjectName(QStringLiteral("HScroll1"));
    scale->setRange(1900, 8000);
    for (QWidget* later : std::initializer_list<QWidget*>{find, save, scale})
        later->setEnabled(false);
    auto* grid = new QGridLayout(box);
    grid->addWidget(new QLabel(QStringLiteral("Bal margó")), 0, 0);
    grid->addWidget(bindLabel(tab_.lbXpoz, "lbXpoz", "A kép helyzete a bal margótól"), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Felső margó")), 0, 2);
    grid->addWidget(bindLabel(tab_.lbYpoz, "lbYpoz", "A kép helyzete a felső margótól."), 0, 3);
    grid->addWidget(scale, 1, 0, 1, 4);
    grid->addWidget(find, 2, 0, 1, 2);
    grid->addWidget(save, 2, 2, 1, 2);
    QLabel* picture = label("Image3");
    picture->setFrameStyle(QFrame::Box | QFrame::Plain);
    picture->setText(QStringLiteral("kép"));
    picture->setScaledContents(true);
    picture->setAlignment(Qt::AlignCenter);
    picture->setAttribute(Qt::WA_TransparentForMouseEvents); // the boxes under it stay within reach
    page()->place(picture, {});
    QLabel* warning = label("lbFigyelem"); // shown once the picture can be moved off the envelope
    warning->hide();
    grid->addWidget(warning, 3, 0, 1, 4);
    picture->lower(); // the boxes stay readable on it
    onShow([this, box, picture, shown = qint64{0}]() mutable {
        page()->place(picture, pictureOnEnvelope(tab_));
        if (!tab_.picture.isNull() && shown != tab_.picture.cacheKey())
            picture->setPixmap(QPixmap::fromImage(tab_.picture));
        shown = tab_.picture.cacheKey();
        picture->setVisible(tab_.chkKepPrint);
        box->setVisible(tab_.chkKepPrint);
    });
    return box;
}

void EnvelopeView::placeForType() {
    const TypeRow& row = rowOf(tab_.type);
    page()->setPicture(QString::fromLatin1(row.picture), row.mm);
    const double scale = row.mm.width() / 162.0; // the same size on the screen whatever the envelope
    const auto put = [&](const char* name, QPointF at, QSizeF size, double letterMm) {
        auto* widget = findChild<QWidget*>(QLatin1String(name));
        page()->place(widget, {at, size * scale}, letterMm * scale);
    };
    put("frameFelado", row.sender, {62, 18}, 3);
    put("txtFelado5mezo", row.sender + QPointF(0, 18.5 * scale), {57, 4.4}, 3);
    put("frameCimzett", row.addressee, {72, 33}, 3.3);
    setShown({"frameFelado"}, tab_.chkFelado);
    setShown({"frameCimzett"}, tab_.chkCimzett);
}
