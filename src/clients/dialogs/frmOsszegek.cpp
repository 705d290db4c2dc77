#include "clients/dialogs/frmOsszegek.h"

#include "controls/named.h"
#include "controls/report_list.h"
#include "prompts/messages.h"
#include "records/number_text.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int slots = 12;

// Names of clients may look like markup.
QLabel* makeValue(const char* name) {
    auto* label = named(new QLabel, name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

frmOsszegek::frmOsszegek(const ProgramFolder& folder, Prompts& prompts, int rekordszam, QWidget* parent)
    : Dialog("frmOsszegek", u"Összegek felvitele"_s, parent)
    , folder_(folder)
    , prompts_(prompts)
    , rekordszam_(rekordszam)
    , lbNev_(makeValue("lbNev"))
    , lbCim_(makeValue("lbCim"))
    , list_(new ReportList("ListView1", {u"Sorszám"_s, u"Összeg"_s}))
    , text1_(named(new QLineEdit, "Text1", u"ENTER - az összeg rögzítése"_s))
    , cmdRogzit_(named(new QPushButton(u"&Rögzítés"_s), "cmdRogzit", u"Új összeg a lista első üres helyére"_s))
    , cmdModosit_(named(new QPushButton(u"&Módosítás"_s), "cmdModosit", u"Az új összeg a kijelölt sor helyére"_s))
    , cmdTorol_(named(new QPushButton(u"&Törlés"_s), "cmdTorol", u"A kijelölt sor törlése"_s)) {
    layOut();
    cmdRogzit_->setEnabled(false);
    connect(text1_, &QLineEdit::textChanged, this, &frmOsszegek::text1Changed);
    connect(text1_, &QLineEdit::returnPressed, this, &frmOsszegek::enterPressed);
    connect(list_, &QTreeWidget::itemSelectionChanged, this, &frmOsszegek::pickRow);
    connect(cmdRogzit_, &QPushButton::clicked, this, &frmOsszegek::cmdRogzit_Click);
    connect(cmdModosit_, &QPushButton::clicked, this, &frmOsszegek::cmdModosit_Click);
    connect(cmdTorol_, &QPushButton::clicked, this, &frmOsszegek::cmdTorol_Click);
    text1_->setFocus();
}

void frmOsszegek::layOut() {
    list_->setMinimumHeight((slots + 2) * (list_->fontMetrics().height() + 5));
    auto* close = named(new QPushButton(u"&Bezár"_s), "cmdBezar");
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* grid = new QGridLayout(this);
    const auto row = [&](int at, const QString& caption, QWidget* value) {
        auto* label = new QLabel(caption);
        label->setBuddy(value);
        value->setAccessibleName(caption);
        grid->addWidget(label, at, 0);
        grid->addWidget(value, at, 1, 1, 2);
    };
    row(0, u"Feladó neve:"_s, lbNev_);
    row(1, u"Feladó címe:"_s, lbCim_);
    auto* stored = new QLabel(u"Eddig felvett összegek:"_s);
    stored->setBuddy(list_);
    list_->setAccessibleName(stored->text());
    grid->addWidget(stored, 2, 0, 1, 2);
    grid->addWidget(list_, 3, 0, 6, 2);
    auto* side = new QVBoxLayout;
    auto* fresh = new QLabel(u"Új összeg:"_s);
    fresh->setBuddy(text1_);
    text1_->setAccessibleName(fresh->text());
    for (QWidget* widget : std::initializer_list<QWidget*>{fresh, text1_, cmdRogzit_, cmdModosit_, cmdTorol_})
        side->addWidget(widget);
    side->addStretch(1);
    side->addWidget(close);
    grid->addLayout(side, 3, 2, 6, 1);
    grid->addWidget(new QLabel(u"Egy-egy ügyfélhez 12 összeg rögzíthető!"_s), 9, 0, 1, 3);
    grid->setColumnStretch(1, 1);
}

void frmOsszegek::Beolvas() {
    const std::optional<Client> client = readClient(folder_, rekordszam_);
    const ClientRec& own = client ? client->client : zeroRecord<ClientRec>();
    lbNev_->setText(own.Nev.stored());
    lbCim_->setText(own.Irsz.stored() + u' ' + own.Helyseg.trimmed() + u", "_s + own.Cim.stored());
    std::vector<ReportList::Row> rows;
    for (const StoredAmount& amount : storedAmounts(own))
        rows.push_back({{u"%1"_s.arg(amount.slot, 2), QString::number(amount.forints)}, amount.slot});
    list_->showRows(rows);
    pickRow();
    if (client) Q_EMIT amountsRead(*client);
}

void frmOsszegek::text1Changed(const QString& text) {
    lastAdded_.clear();
    if (text.isEmpty()) cmdRogzit_->setEnabled(false);
    if (amountOf(text) > 0) cmdRogzit_->setEnabled(true);
}

void frmOsszegek::enterPressed() {
    if (!cmdRogzit_->isEnabled() || text1_->text() == lastAdded_) return;
    cmdRogzit_Click();
    lastAdded_ = text1_->text();
    text1_->selectAll();
}

void frmOsszegek::pickRow() {
    osszegSor_ = static_cast<int>(list_->picked());
    cmdModosit_->setEnabled(osszegSor_ > 0);
    cmdTorol_->setEnabled(osszegSor_ > 0);
}

// An amount that couldn't be shown would hold its slot for ever.
bool frmOsszegek::isInRange(qint64 forints) {
    constexpr qint64 largest = 9999998;
    if (forints >= 1 && forints <= largest) return true;
    prompts_.tell({Icon::information, titles::attention, u"Az összeg csak 1 és 9999998 közötti szám lehet!"_s});
    text1_->setFocus();
    return false;
}

void frmOsszegek::cmdRogzit_Click() {
    const qint64 forints = amountOf(text1_->text());
    if (!isInRange(forints)) return;
    finish(addAmount(folder_, rekordszam_, static_cast<int>(forints)), u"Összeg felvéve: %1 Ft"_s.arg(forints));
}

void frmOsszegek::cmdModosit_Click() {
    const qint64 forints = amountOf(text1_->text());
    if (forints == 0) {
        const QString question = u"Nem írtál be új összeget, így a\nmeglévő összeg törölve lesz!\nMehet a törlés?"_s;
        if (prompts_.ask({Icon::question, titles::warning, question}) != Answer::yes) return text1_->setFocus();
    } else if (!isInRange(forints)) {
        return;
    }
    list_->setFocus();
    finish(setAmount(folder_, rekordszam_, osszegSor_, static_cast<int>(forints)),
           forints == 0 ? u"Összeg törölve"_s : u"Összeg módosítva: %1 Ft"_s.arg(forints));
}

void frmOsszegek::cmdTorol_Click() {
    list_->setFocus(); // not left to the next button, which closes
    finish(setAmount(folder_, rekordszam_, osszegSor_, 0), u"Összeg törölve"_s);
}

void frmOsszegek::finish(AmountStored stored, const QString& what) {
    switch (stored) {
    case AmountStored::stored:
        Beolvas();
        Q_EMIT said(what + u", "_s + trimBlanks(lbNev_->text()).toString() + u'.');
        break;
    case AmountStored::full:
        prompts_.tell({Icon::information, titles::attention,
                       u"Ehhez az ügyfélhez már 12 összeg van rögzítve!\nEgy-egy ügyfélhez 12 összeg rögzíthető!"_s});
        text1_->setFocus();
        break;
    case AmountStored::noClient:
        prompts_.tell(messages::nobodyPicked());
        break;
    case AmountStored::notWritten:
        prompts_.tell(messages::notWritten());
        break;
    }
}
