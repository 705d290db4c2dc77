#include "settings/setup/envelope_types.h"

#include "controls/named.h"
#include "prompts/titles.h"
#include "records/number_text.h"
#include "settings/setup/save_note.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

template<auto field>
constexpr BoxRow<boritek> whole(const char* name, const char16_t* label) {
    return plainRow<field>({name, label, &wholeBox, Restore::no});
}

using Positions = std::array<BoxRow<boritek>, 4>;

template<auto senderX, auto senderY, auto addresseeY, auto addresseeX>
constexpr Positions positions = {
    whole<senderX>("Text1_0", u"Feladó baloldaltól:"),
    whole<senderY>("Text1_1", u"Feladó fentről:"),
    whole<addresseeY>("Text1_2", u"Címzett fentről:"),
    whole<addresseeX>("Text1_3", u"Címzett baloldaltól:"),
};

struct TypeRow {
    const char* option;
    const char16_t* caption;
    const char16_t* name;
    QSize mm;
    const char* save;
    const Positions& rows; // of the same four boxes for every type
};

constexpr TypeRow types[] = {
    {"OpB1",
     u"C6 normál boríték (162 x 114 mm)",
     u"C6 Normál boríték",
     {162, 114},
     "cmdBoritekMeretSave_0",
     positions<&boritek::boritekC6Felado_x, &boritek::boritekC6Felado_y, &boritek::boritekC6Cimzett_y,
               &boritek::boritekC6Cimzett_x>},
    {"OpB2",
     u"C5 boríték (229 x 162 mm)",
     u"C5 boríték",
     {229, 162},
     "cmdBoritekMeretSave_1",
     positions<&boritek::boritekC5Felado_x, &boritek::boritekC5Felado_y, &boritek::boritekC5Cimzett_y,
               &boritek::boritekC5Cimzett_x>},
    {"OpB3",
     u"C5/6 csekk boríték (229 x 114 mm)",
     u"C5/6 csekk boríték",
     {229, 114},
     "cmdBoritekMeretSave_2",
     positions<&boritek::boritekC56Felado_x, &boritek::boritekC56Felado_y, &boritek::boritekC56Cimzett_y,
               &boritek::boritekC56Cimzett_x>},
};

constexpr QSize largest(229, 162);
constexpr int pixelsPerMm = 2; // of the sample, on which the boxes must find room

} // namespace

EnvelopeTypes::EnvelopeTypes(PageBuilder& page, const SetupContext& context)
    : QObject(page.page())
    , page_(page.page())
    , prompts_(context.prompts)
    , boxes_{RecordBoxes<boritek>(context.folder), RecordBoxes<boritek>(context.folder),
             RecordBoxes<boritek>(context.folder)}
    , sample_(named(new QFrame, "BoritekMinta"))
    , name_(new QLabel)
    , caption_(new QLabel)
    , width_(named(new QLabel, "lbBoritekSzeles"))
    , height_(named(new QLabel, "lbBoritekMagas")) {
    static_assert(std::size(types) == typeCount);
    BoxFrame* sample = makeSample(page);
    addSaves(page, *sample);
    page.place(sample, {0, 0, 2, 1});
    page.place(makeOptions(), {0, 1});
}

BoxFrame* EnvelopeTypes::makeOptions() {
    auto* frame = new BoxFrame({"Frame3", u"Boríték típusa"});
    auto* column = new QVBoxLayout;
    for (std::size_t i = 0; i < typeCount; ++i) {
        auto* option = named(new QRadioButton(QString::fromUtf16(types[i].caption)), types[i].option);
        connect(option, &QRadioButton::toggled, this, [this, i](bool on) {
            if (on) choose(i);
        });
        column->addWidget(option);
        if (i == 0) option->setChecked(true);
    }
    frame->addRow(column);
    return frame;
}

BoxFrame* EnvelopeTypes::makeSample(PageBuilder& page) {
    sample_->setFrameStyle(QFrame::Box | QFrame::Plain);
    sample_->setBackgroundRole(QPalette::Base);
    sample_->setAutoFillBackground(true);
    auto* onSample = new QVBoxLayout(sample_);
    onSample->addWidget(makeBlock(page, 0), 0, Qt::AlignLeft | Qt::AlignTop);
    onSample->addWidget(name_, 1, Qt::AlignCenter);
    onSample->addWidget(makeBlock(page, 2), 0, Qt::AlignRight | Qt::AlignBottom);

    auto* room = new QGridLayout; // of the largest, so that nothing moves when another type is chosen
    room->setColumnMinimumWidth(0, largest.width() * pixelsPerMm);
    room->setRowMinimumHeight(0, largest.height() * pixelsPerMm);
    room->addWidget(sample_, 0, 0, Qt::AlignCenter);
    auto* frame = new BoxFrame({"Frame4", u"Boríték minta"});
    frame->addRow(room);
    frame->addRow(makeCaption());
    page.watch(*frame, [this] { return boxes_[chosen_].isEdited(); });
    return frame;
}

// Two of the boxes, bound to their fields of every type.
BoxFrame* EnvelopeTypes::makeBlock(PageBuilder& page, std::size_t first) {
    auto* block = new BoxFrame({});
    for (QWidget* box : page.addBoxes(*block, {types[0].rows[first], types[0].rows[first + 1]})) {
        for (std::size_t i = 0; i < typeCount; ++i)
            boxes_[i].bind(types[i].rows[text1_.size()], box);
        text1_.push_back(static_cast<QLineEdit*>(box));
    }
    return block;
}

QLayout* EnvelopeTypes::makeCaption() {
    auto* line = new QHBoxLayout;
    line->addStretch();
    for (QLabel* part : {caption_, width_, new QLabel(QStringLiteral("x")), height_})
        line->addWidget(part);
    line->addStretch();
    return line;
}

void EnvelopeTypes::addSaves(PageBuilder& page, BoxFrame& frame) {
    std::vector<SaveRow> rows;
    for (std::size_t i = 0; i < typeCount; ++i)
        rows.push_back({types[i].save,
                        u"&Méretek rögzítése",
                        {},
                        [boxes = boxes_[i]] { return boxes.store(); },
                        [this] { return refuses(); }});
    foot_ = page.addSaves(frame, rows);
}

void EnvelopeTypes::choose(std::size_t type) {
    const bool wasEdited = boxes_[chosen_].isEdited();
    const QString left = QString::fromUtf16(types[chosen_].name);
    chosen_ = type;
    const TypeRow& row = types[type];
    name_->setText(QString::fromUtf16(row.name));
    caption_->setText(name_->text());
    width_->setText(QStringLiteral("%1 mm").arg(row.mm.width()));
    height_->setText(QStringLiteral("%1 mm").arg(row.mm.height()));
    sample_->setFixedSize(row.mm * pixelsPerMm);
    for (std::size_t i = 0; i < foot_.buttons.size(); ++i) {
        foot_.buttons[i]->setEnabled(i == type);
        foot_.buttons[i]->setVisible(i == type);
    }
    boxes_[type].fill();
    Q_EMIT page_->changed();
    if (wasEdited) foot_.note->setText(QStringLiteral("Nem lett rögzítve: %1").arg(left));
}

// The first bad box is the one to go to.
bool EnvelopeTypes::refuses() const {
    const auto bad =
        std::find_if(text1_.begin(), text1_.end(), [](const QLineEdit* box) { return !wholeI16(box->text()); });
    if (bad == text1_.end()) return false;
    prompts_.tell({Icon::critical, titles::error,
                   QStringLiteral("Hibás szám: ''%1''\nIde csak szám írható!").arg((*bad)->text())});
    (*bad)->setFocus();
    (*bad)->selectAll();
    return true;
}
