#include "exchange/dialogs/frmAutBeolvas.h"

#include "controls/folder_chooser.h"
#include "controls/named.h"
#include "prompts/titles.h"
#include "records/record_file.h"
#include "settings/general_settings.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

frmAutBeolvas::frmAutBeolvas(const ProgramFolder& folder, Prompts& prompts, QWidget* parent)
    : Dialog("frmAutBeolvas", u"Automatikus adat beolvasás"_s, parent)
    , folder_(folder)
    , prompts_(prompts)
    , chkAutBeolvas_(named(new QCheckBox(u"Automatikus adatbeolvasás engedélyezése."_s), "chkAutBeolvas"))
    , txtAutBeolvas_(named(new QLineEdit, "txtAutBeolvas"))
    , chooser_(new FolderChooser)
    , append_(named(new QRadioButton(u"Beolvasott adatok hozzáfűzése a meglévő adatbázishoz."_s), "opHozzafuzes_0"))
    , overwrite_(named(new QRadioButton(u"Meglévő adatbázis felülírása az új adatokkal."_s), "opHozzafuzes_1"))
    , chkAutoPrint_(named(new QCheckBox(u"Importálás után automatikus csekk nyomtatás"_s), "chkAutoPrint")) {
    txtAutBeolvas_->setMaxLength(decltype(Set::txtAutBeolvas)::width);
    layOut();
    connect(chooser_, &FolderChooser::pathChanged, txtAutBeolvas_, &QLineEdit::setText);
    // Only a database that holds nobody but the new clients may be printed whole.
    connect(overwrite_, &QRadioButton::toggled, chkAutoPrint_, [this](bool overwrites) {
        chkAutoPrint_->setEnabled(overwrites);
        if (!overwrites) chkAutoPrint_->setChecked(false);
    });
    load();
}

void frmAutBeolvas::layOut() {
    auto* pathLabel = new QLabel(u"A figyelt mappa útvonala:"_s);
    pathLabel->setBuddy(txtAutBeolvas_);
    auto* note = named(new QLabel(u"A figyelt mappában lévő \" *.csv \" fájlt beolvassa és importálja, majd a "
                                  "beállítástól függően hozzáfűzi az adatbásishoz vagy felülírja a régi adatbázist. "
                                  "Az importálás végeztével a figyelt mappából törli a beolvasott \" *.csv \" fált."_s),
                       "Label2");
    note->setWordWrap(true);
    auto* way = new QGroupBox;
    auto* wayLayout = new QVBoxLayout(way);
    for (QWidget* option : std::initializer_list<QWidget*>{append_, overwrite_, chkAutoPrint_})
        wayLayout->addWidget(option);
    auto* save = named(new QPushButton(u"&Beállítások mentése"_s), "cmdMent");
    auto* cancel = named(new QPushButton(u"&Mégse"_s), "Command1");
    connect(save, &QPushButton::clicked, this, &frmAutBeolvas::cmdMent_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(save);
    buttons->addWidget(cancel);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addWidget(chkAutBeolvas_);
    layout->addWidget(pathLabel);
    layout->addWidget(txtAutBeolvas_);
    layout->addWidget(chooser_, 1);
    layout->addWidget(way);
    layout->addWidget(note);
    layout->addLayout(buttons);
}

void frmAutBeolvas::load() {
    const auto set = readRecord<Set>(folder_);
    chkAutBeolvas_->setChecked(set.chkAutBeolvas != 0);
    txtAutBeolvas_->setText(set.txtAutBeolvas.trimmed());
    chooser_->setPath(set.txtAutBeolvas.trimmed());
    chkAutoPrint_->setEnabled(set.opHozzafuzes_1);
    (set.opHozzafuzes_1 ? overwrite_ : append_)->setChecked(true);
    chkAutoPrint_->setChecked(set.opHozzafuzes_1 && set.chkAutoPrint != 0);
}

void frmAutBeolvas::cmdMent_Click() {
    const decltype(Set::txtAutBeolvas) path(txtAutBeolvas_->text());
    if (path.trimmed() != trimBlanks(txtAutBeolvas_->text())) {
        prompts_.tell({Icon::critical, titles::error,
                       u"A mappa útvonala nem tárolható:\nolyan betű van benne, amelyet a program nem ismer."_s});
        return txtAutBeolvas_->setFocus();
    }
    const bool isStored = updateRecord<Set>(folder_, [&](Set& set) {
        set.chkAutBeolvas = chkAutBeolvas_->isChecked() ? 1 : 0;
        set.opHozzafuzes_1 = overwrite_->isChecked();
        set.txtAutBeolvas = path;
        set.chkAutoPrint = chkAutoPrint_->isChecked() ? 1 : 0;
    });
    if (!isStored) return prompts_.tell({Icon::critical, titles::error, u"A beállítások nem menthetők!"_s});
    accept();
}
