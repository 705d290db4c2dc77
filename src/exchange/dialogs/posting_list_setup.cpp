#include "exchange/dialogs/posting_list_setup.h"

#include "controls/named.h"
#include "prompts/titles.h"
#include "records/number_text.h"
#include "records/record_file.h"
#include "settings/other_settings.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

#ifdef Q_OS_WIN
const QString programs = u"*.exe"_s;
#else
const QString programs = u"*"_s; // a program has no ending here
#endif

using StoredPath = decltype(FjSet::txtExcelUtvonal);

QPushButton* button(const char* name, const QString& caption) { return named(new QPushButton(caption), name); }

} // namespace

frmFjSetup::frmFjSetup(const ProgramFolder& folder, Prompts& prompts, QWidget* parent)
    : Dialog("frmFjSetup", u"Feladójegyzék beállítások"_s, parent)
    , folder_(folder)
    , prompts_(prompts)
    , txtBal_(named(new QLineEdit, "txtBal"))
    , txtFelso_(named(new QLineEdit, "txtFelso"))
    , txtExcelUtvonal_(named(new QLineEdit, "txtExcelUtvonal"))
    , saved_(named(new QLabel, "lbElmentve")) {
    build();
    fill();
    for (const QLineEdit* box : {txtBal_, txtFelso_, txtExcelUtvonal_})
        connect(box, &QLineEdit::textChanged, saved_, &QLabel::clear);
}

void frmFjSetup::build() {
    auto* grid = new QGridLayout(this);
    const auto addRow = [grid](int row, const QString& caption, QLineEdit* box) {
        auto* label = new QLabel(caption);
        label->setBuddy(box);
        grid->addWidget(label, row, 0);
        grid->addWidget(box, row, 1);
    };
    addRow(0, u"Név &bal margó:"_s, txtBal_);
    addRow(1, u"Név &felső margó:"_s, txtFelso_);
    addRow(2, u"&Excel útvonal:"_s, txtExcelUtvonal_);
    const int digits = fontMetrics().horizontalAdvance(u"-00000000"_s);
    for (QLineEdit* box : {txtBal_, txtFelso_}) {
        box->setFixedWidth(digits);
        grid->addWidget(new QLabel(u"mm"_s), box == txtBal_ ? 0 : 1, 2);
    }
    txtExcelUtvonal_->setMinimumWidth(5 * digits);
    grid->addWidget(txtExcelUtvonal_, 2, 1, 1, 2);
    auto* browse = button("cmdTalloz", u"&Tallóz"_s);
    grid->addWidget(browse, 2, 3);

    auto* save = button("cmdMent", u"&Mentés"_s);
    auto* back = button("Command1", u"&Vissza"_s);
    auto* foot = new QHBoxLayout;
    foot->addWidget(saved_, 1);
    foot->addWidget(save);
    foot->addWidget(back);
    grid->addLayout(foot, 3, 0, 1, 4);
    grid->setColumnStretch(2, 1);
    connect(browse, &QPushButton::clicked, this, &frmFjSetup::cmdTalloz_Click);
    connect(save, &QPushButton::clicked, this, &frmFjSetup::cmdMent_Click);
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
}

void frmFjSetup::fill() {
    const auto set = readRecord<FjSet>(folder_);
    txtBal_->setText(QString::number(set.txtBal));
    txtFelso_->setText(QString::number(set.txtFelso));
    txtExcelUtvonal_->setText(set.txtExcelUtvonal.trimmed());
}

void frmFjSetup::cmdTalloz_Click() {
    const QString path = prompts_.openFile(u"Excel útvonal"_s, programs);
    if (!path.isEmpty()) txtExcelUtvonal_->setText(QDir::toNativeSeparators(path));
}

void frmFjSetup::cmdMent_Click() {
    if (refuses()) return;
    const Message question{Icon::question, u" Módosítás "_s, u"Biztos módosítod a beállításokat?"_s};
    if (prompts_.ask(question) == Answer::yes) store();
}

// The first bad box is the one to go to; nothing is stored while there is one.
bool frmFjSetup::refuses() {
    for (QLineEdit* box : {txtBal_, txtFelso_}) {
        if (wholeI16(box->text())) continue;
        complain(box, u"Hibás szám: ''%1''\nIde csak szám írható!"_s.arg(box->text()));
        return true;
    }
    const QString path = trimBlanks(txtExcelUtvonal_->text()).toString();
    if (StoredPath::keeps(path)) return false;
    complain(txtExcelUtvonal_, u"Az útvonal nem tárolható: ''%1''\nLegfeljebb %2 betűből állhat, idegen betűk "
                               "nélkül."_s.arg(path)
                                   .arg(StoredPath::width));
    return true;
}

void frmFjSetup::complain(QLineEdit* box, const QString& text) {
    prompts_.tell({Icon::critical, titles::error, text});
    box->setFocus();
    box->selectAll();
}

void frmFjSetup::store() {
    const bool stored = updateRecord<FjSet>(folder_, [this](FjSet& set) {
        set.txtBal = *wholeI16(txtBal_->text());
        set.txtFelso = *wholeI16(txtFelso_->text());
        set.txtExcelUtvonal.set(trimBlanks(txtExcelUtvonal_->text()));
    });
    if (stored) return saved_->setText(u"Elmentve"_s);
    prompts_.tell({Icon::critical, titles::error,
                   u"A beállításokat nem sikerült elmenteni!\nEllenőrizd, hogy a program mappája írható-e!"_s});
}
