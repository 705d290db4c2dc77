#include "settings/setup/catalogue_dialog.h"

#include "controls/named.h"
#include "controls/report_list.h"
#include "prompts/titles.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr CatalogueHalf titleHalves[] = {
    {firstTitleLines, "txtJogcim1", u"Új jogcím szöveg 1. sora:", "cmdFelvesz", u"&Felvesz", "cmdDel",
     u"&Listából Töröl", "ListView1", u"Jogcím szöveg 1. sora"},
    {secondTitleLines, "txtJogcim2", u"Új jogcím szöveg 2. sora:", "cmdFelvesz2", u"F&elvesz", "cmdDel2",
     u"Li&stából Töröl", "ListView2", u"Jogcím szöveg 2. sora"},
};
constexpr CatalogueHalf noticeHalves[] = {
    {notices, "txtKozlemeny", u"Új közlemény szöveg:", "cmdFelvesz", u"&Felvesz", "cmdDel", u"&Listából Töröl",
     "ListView1", u"Közlemény szöveg"},
};

ReportList* makeList(const CatalogueHalf& half) {
    auto* list = new ReportList(half.list, {QString::fromUtf16(half.column), QStringLiteral("rec")});
    const int letter = list->fontMetrics().averageCharWidth();
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list->header()->resizeSection(1, 8 * letter);
    list->setMinimumSize(48 * letter, 12 * list->fontMetrics().lineSpacing());
    return list;
}

QPushButton* makeButton(const char* name, const char16_t* caption) {
    auto* button = named(new QPushButton(QString::fromUtf16(caption)), name);
    button->setEnabled(false);
    return button;
}

class HalfView : public QWidget {
public:
    HalfView(const CatalogueHalf& half, const ProgramFolder& folder, Prompts& prompts);

private:
    void layOut(const CatalogueHalf& half);
    void show(const std::vector<CatalogueEntry>& entries);
    void add();
    void remove();
    void tellRefused();

    const Catalogue& catalogue_;
    const ProgramFolder& folder_;
    Prompts& prompts_;
    QLineEdit* box_;
    QPushButton* add_;
    ReportList* list_;
    QPushButton* remove_;
};

HalfView::HalfView(const CatalogueHalf& half, const ProgramFolder& folder, Prompts& prompts)
    : catalogue_(half.catalogue)
    , folder_(folder)
    , prompts_(prompts)
    , box_(named(new QLineEdit, half.box))
    , add_(makeButton(half.add, half.addCaption))
    , list_(makeList(half))
    , remove_(makeButton(half.remove, half.removeCaption)) {
    box_->setMaxLength(decltype(CatalogueEntry::Szoveg)::width);
    layOut(half);
    connect(box_, &QLineEdit::textChanged, add_,
            [this](const QString& text) { add_->setEnabled(!trimBlanks(text).isEmpty()); });
    connect(box_, &QLineEdit::returnPressed, add_, &QPushButton::click);
    connect(list_, &QTreeWidget::itemSelectionChanged, remove_, [this] { remove_->setEnabled(list_->picked() > 0); });
    connect(add_, &QPushButton::clicked, this, &HalfView::add);
    connect(remove_, &QPushButton::clicked, this, &HalfView::remove);
    show(readEntries(folder_, catalogue_));
}

void HalfView::layOut(const CatalogueHalf& half) {
    auto* label = new QLabel(QString::fromUtf16(half.boxLabel));
    label->setBuddy(box_);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(label, 0, 0, 1, 2);
    grid->addWidget(box_, 1, 0);
    grid->addWidget(add_, 1, 1);
    grid->addWidget(list_, 2, 0, 1, 2);
    grid->addWidget(remove_, 3, 0, 1, 2, Qt::AlignLeft);
}

void HalfView::show(const std::vector<CatalogueEntry>& entries) {
    std::vector<ReportList::Row> rows;
    for (qint64 number = 1; const CatalogueEntry& entry : entries) {
        rows.push_back({{entry.Szoveg.trimmed(), QString::number(number)}, number});
        ++number;
    }
    list_->showRows(rows);
    remove_->setEnabled(false);
}

void HalfView::add() {
    const auto entries = appendEntry(folder_, catalogue_, box_->text());
    if (!entries) return tellRefused();
    show(*entries);
    list_->scrollToBottom(); // the new entry is the last
    box_->clear();
    box_->setFocus();
}

void HalfView::remove() {
    const auto entries = removeEntry(folder_, catalogue_, list_->picked());
    if (!entries) return tellRefused();
    show(*entries);
}

void HalfView::tellRefused() {
    prompts_.tell({Icon::critical, titles::error,
                   QStringLiteral("A listát nem sikerült módosítani!\n"
                                  "Ellenőrizd, hogy a program mappája írható-e!")});
}

} // namespace

const CatalogueLook frmJogcimek{"frmJogcimek", u"Jogcím szövegek felvétele", titleHalves};
const CatalogueLook frmKozlemeny{"frmKozlemeny", u"Közlemény szövegek felvétele", noticeHalves};

CatalogueDialog::CatalogueDialog(const CatalogueLook& look, const ProgramFolder& folder, Prompts& prompts,
                                 QWidget* parent)
    : Dialog(look.name, QString::fromUtf16(look.title), parent) {
    auto* layout = new QGridLayout(this);
    for (int column = 0; const CatalogueHalf& half : look.halves)
        layout->addWidget(new HalfView(half, folder, prompts), 0, column++);
    auto* back = named(new QPushButton(QStringLiteral("&Vissza")), "cmdVissza");
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(back, 1, 0, 1, -1, Qt::AlignRight);
}
