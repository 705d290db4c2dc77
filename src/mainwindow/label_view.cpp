#include "controls/entry_combo.h"
#include "controls/named.h"
#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/form_views.h"
#include "mainwindow/label_cells.h"
#include "records/number_text.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>

#include <algorithm>

namespace {

// What a line without a font or size of its own prints in.
QString defaultFont() { return QStringLiteral("Times New Roman CE"); }
constexpr int defaultSize = 12;

QByteArray indexed(const char* name, int index) { return QByteArray(name) + '_' + QByteArray::number(index); }

// The tab has more rows than any form: with the style's own gaps it would be higher than they are.
QGridLayout* compactGrid(QWidget* box) {
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(8, 3, 8, 3);
    grid->setVerticalSpacing(2);
    return grid;
}

} // namespace

LabelView::LabelView(LabelTab& tab, const FormContext& context)
    : BoundView(context)
    , tab_(tab)
    , folder_(context.folder) {
    for (int size = 10; size <= 24; size += 2)
        sizes_ << QString::number(size);
    auto* columns = new QHBoxLayout;
    const auto column = [columns](int stretch, std::initializer_list<QWidget*> boxes) {
        auto* stack = new QVBoxLayout;
        for (QWidget* box : boxes)
            stack->addWidget(box);
        columns->addLayout(stack, stretch);
    };
    column(0, {buildFonts(), buildSheet()});
    column(1, {buildGrid()});
    column(0, {buildPreview(), buildCustom()});
    const QString help = QStringLiteral(
        "A nyomtatni kívánt cimké(ke)t ki kell pipálni. A nyomtatáskor csak a kipipált cimkék kerülnek nyomtatásra. "
        "Oszlop vagy sor állítás után meg kell nyomni a Rögzítés gombot. A cimkék méretét a program automatikusan "
        "kiszámolja a sor és oszlop adatokból. ");
    auto* note = named(new QLabel(help), "Label5", help); // a narrow window cuts it
    note->setWordWrap(true);
    note->setAlignment(Qt::AlignTop);
    // A wrapped label guesses its height from a narrow width and would make the whole window higher.
    note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    note->setFixedHeight(2 * note->fontMetrics().lineSpacing());
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(6, 4, 6, 4);
    stack->setSpacing(4);
    stack->addLayout(columns, 1);
    stack->addWidget(note);
    onShow([this] { showGrid(); });
}

void LabelView::offerFonts(const QStringList& fonts) {
    fonts_ = fonts;
    showValues();
}

QGroupBox* LabelView::buildFonts() {
    QGroupBox* box = frame("Frame6", "Betűtípus és betűméret");
    box->setMaximumWidth(360);
    QGridLayout* grid = compactGrid(box);
    auto* sample = named(new QLabel(QStringLiteral("Minta")), "lbMinta");
    sample->setFixedHeight(26); // a large font shows its upper part
    for (int line = 0; line < 5; ++line) {
        const auto index = static_cast<std::size_t>(line);
        EntryCombo* font = bindCombo(tab_.ComboBetuTipus1[index], fonts_, indexed("ComboBetuTipus1", line));
        EntryCombo* size = bindCombo(tab_.ComboBetuSize[index], sizes_, indexed("ComboBetuSize", line));
        font->lineEdit()->setPlaceholderText(defaultFont());
        size->lineEdit()->setPlaceholderText(QString::number(defaultSize));
        font->setMinimumContentsLength(12);
        size->setMinimumContentsLength(2);
        grid->addWidget(new QLabel(QStringLiteral("%1. sor").arg(line + 1)), line, 0);
        grid->addWidget(font, line, 1);
        grid->addWidget(size, line, 2);
        font->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        size->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        const auto showSample = [this, index, sample] { sample->setFont(lineFont(index)); };
        connect(font, &QComboBox::editTextChanged, sample, showSample);
        connect(size, &QComboBox::editTextChanged, sample, showSample);
    }
    grid->addWidget(sample, 5, 0);
    QPushButton* save = bindButton("cmbBetutipusok", QStringLiteral("&Betűtípus és méret mentése"));
    onEdit(save, tab_, cmbBetutipusok_Click);
    grid->addWidget(save, 5, 1, 1, 2);
    return box;
}

QGroupBox* LabelView::buildSheet() {
    QGroupBox* box = frame("Frame7", "Cimke méret beállítása");
    box->setMaximumWidth(360);
    QGridLayout* form = compactGrid(box);
    static const QStringList columns{QStringLiteral("4"), QStringLiteral("3"), QStringLiteral("2"),
                                     QStringLiteral("1")};
    static const QStringList rows{QStringLiteral("10"), QStringLiteral("9"), QStringLiteral("8"), QStringLiteral("7"),
                                  QStringLiteral("6"),  QStringLiteral("5"), QStringLiteral("4"), QStringLiteral("3")};
    // The boxes by their values, to find the one that holds no number.
    std::vector<std::pair<const QString*, QLineEdit*>> boxes;
    const auto add = [form, &boxes](int row, int column, const char* caption, const QString& value, QWidget* field) {
        form->addWidget(new QLabel(QString::fromUtf8(caption)), row, column);
        form->addWidget(field, row, column + 1);
        auto* combo = qobject_cast<EntryCombo*>(field);
        boxes.emplace_back(&value, combo != nullptr ? combo->lineEdit() : static_cast<QLineEdit*>(field));
    };
    form->setColumnStretch(1, 1);
    form->setColumnStretch(3, 1);
    add(0, 0, "Oszlop:", tab_.txtOszlop, bindCombo(tab_.txtOszlop, columns, "txtOszlop"));
    add(0, 2, "Sor:", tab_.txtSor, bindCombo(tab_.txtSor, rows, "txtSor"));
    add(1, 0, "Szélesség:", tab_.txtSzeles, bindText(tab_.txtSzeles, "txtSzeles", "A cimke szélessége, mm"));
    add(1, 2, "Magasság:", tab_.txtMagas, bindText(tab_.txtMagas, "txtMagas", "A cimke magassága, mm"));
    add(2, 0, "Balról:", tab_.txtLeft,
        bindText(tab_.txtLeft, "txtLeft", "A név első karakterének pozíciója az A4-es lap bal szélétől."));
    add(2, 2, "Fentről:", tab_.txtTop,
        bindText(tab_.txtTop, "txtTop", "A név első karakterének pozíciója az A4-es lap tetejétől."));
    QPushButton* store = bindButton("cmdCimkeMeretRogzites", QStringLiteral("&Rögzítés"));
    onEdit(store, tab_, cmdCimkeMeretRogzites_Click);
    afterEdit(store, [this, boxes] {
        const QString* wrong = wrongNumber(tab_);
        for (const auto& [value, edit] : boxes) {
            if (value != wrong) continue;
            edit->setFocus();
            edit->selectAll();
        }
    });
    form->addWidget(store, 3, 0, 1, 4);
    form->addWidget(new QLabel(QStringLiteral("Eddig kinyomtatott cimkék száma: ")), 4, 0, 1, 3);
    form->addWidget(bindLabel(tab_.lbKinyomottCimkeNum, "lbKinyomottCimkeNum"), 4, 3);
    return box;
}

QGroupBox* LabelView::buildGrid() {
    QGroupBox* box = frame("Frame8", "Cimkék a lapon");
    cells_ = new QGridLayout(box);
    for (int cell = 0; cell < 40; ++cell) {
        const auto index = static_cast<std::size_t>(cell);
        QAbstractButton* tick = bindCheck(tab_.chkCimke1[index], indexed("chkCimke1", cell + 1), QString());
        tick->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
        // A name's '&' is a letter, not a mnemonic.
        onShow(
            [this, index, tick] { tick->setText(QString(tab_.captions[index]).replace(u'&', QStringLiteral("&&"))); });
        onEdit(tick, tab_, index, chkCimke1_Click);
        connect(tick, &QAbstractButton::toggled, this, [this, index](bool ticked) {
            if (ticked && !tab_.chkCimke1[index]) Q_EMIT clientWanted(); // the tick was refused
        });
        tick->installEventFilter(this);
        tick->setParent(box);
        ticks_.push_back(tick);
    }
    return box;
}

// A tooltip tells the client as stored when it comes up.
bool LabelView::eventFilter(QObject* object, QEvent* event) {
    const auto tick = std::find(ticks_.begin(), ticks_.end(), object);
    if (event->type() == QEvent::ToolTip && tick != ticks_.end())
        (*tick)->setToolTip(plainToolTip(placeTip(tab_, static_cast<std::size_t>(tick - ticks_.begin()), folder_)));
    return BoundView::eventFilter(object, event);
}

void LabelView::showGrid() {
    const LabelGrid grid = labelGrid(tab_);
    if (grid == shownGrid_) return; // a click on a client must not lay out forty boxes anew
    shownGrid_ = grid;
    for (int cell = 0; QWidget * tick : ticks_) {
        tick->setVisible(cell < grid.columns * grid.rows);
        if (grid.columns > 0) cells_->addWidget(tick, cell / grid.columns, cell % grid.columns);
        ++cell;
    }
}

// Font of a label line for the screen; sizes that no label has are shown in one that can be read.
QFont LabelView::lineFont(std::size_t line) const {
    const QString name = trimBlanks(tab_.ComboBetuTipus1[line]).toString();
    const int size = leadingI16(tab_.ComboBetuSize[line]);
    QFont shown(name.isEmpty() ? defaultFont() : name);
    shown.setStyleHint(QFont::Times); // for a screen that hasn't the printer's font
    shown.setPointSize(size > 0 ? std::clamp(size, 6, 48) : defaultSize);
    return shown;
}

QGroupBox* LabelView::buildPreview() {
    QGroupBox* box = frame("Frame9", "Kijelölt Címzett a listában - Cimke minta");
    // In a scroll area: a large font must not make the window higher.
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // for the padding of stored texts
    area->setWidget(new QWidget);
    area->viewport()->setAutoFillBackground(false);
    area->widget()->setAutoFillBackground(false);
    (new QVBoxLayout(box))->addWidget(area);
    auto* lines = new QVBoxLayout(area->widget());
    struct Line {
        const QString& value;
        const char* name;
    };
    const Line rows[] = {{tab_.lbNev1, "lbNev1"},
                         {tab_.lbNev2, "lbNev2"},
                         {tab_.lbHelyseg, "lbHelyseg"},
                         {tab_.lbCim, "lbCim"},
                         {tab_.lbIrsz, "lbIrsz"}};
    std::size_t index = 0;
    for (const Line& row : rows) {
        QLabel* label = bindLabel(row.value, row.name);
        onShow([this, label, line = index] { label->setFont(lineFont(line)); });
        lines->addWidget(label);
        ++index;
    }
    lines->addStretch();
    box->setMinimumWidth(QFontMetrics(box->font()).horizontalAdvance(box->title()) + 16);
    return box;
}

// The room of the custom text is there whether it shows or not: a tick must not change the height of the window.
QGroupBox* LabelView::buildCustom() {
    auto* outer = new QGroupBox;
    outer->setFlat(true);
    auto* layout = new QVBoxLayout(outer);
    layout->setContentsMargins(0, 0, 0, 0);
    QAbstractButton* custom =
        bindCheck(tab_.chkEgyediCimke, "chkEgyediCimke", QStringLiteral("Egyedi cimke nyomtatás"));
    onEdit(custom, tab_, chkEgyediCimke_Click);
    layout->addWidget(custom);
    QGroupBox* box = frame("keretEgyediCimke", "Egyedi cimke");
    auto* lines = new QVBoxLayout(box);
    lines->setContentsMargins(6, 2, 6, 4);
    lines->setSpacing(2);
    for (int line = 0; line < 5; ++line) {
        QLineEdit* text = bindText(tab_.txEgyediCimke[static_cast<std::size_t>(line)], indexed("txEgyediCimke", line));
        onEdit(text, tab_, txEgyediCimke_Change);
        lines->addWidget(text);
    }
    QSizePolicy keepsRoom = box->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    box->setSizePolicy(keepsRoom);
    layout->addWidget(box);
    onShow([this, box] { box->setVisible(tab_.chkEgyediCimke); });
    return outer;
}
