#include "clients/dialogs/frmFelvet.h"

#include "controls/named.h"
#include "controls/warning_mark.h"
#include "prompts/messages.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

// A box to type in. Its field holds `width` letters.
struct frmFelvet::Box {
    const char* name;
    QString ClientEntry::*text;
    const char16_t *label, *foreignLabel;
    int row, column;
    qsizetype width;
    const char16_t* tip = u"";
    const char16_t* note = u"";
    AddressChoice (*search)(const ProgramFolder&, ClientEntry&) = nullptr; // on ENTER
};

// In the order in which they are filled in.
std::span<const frmFelvet::Box> frmFelvet::boxes() {
    static constexpr Box boxes[] = {
        {"txBefizetoNeve", &ClientEntry::txBefizetoNeve, u"Név:", u"Név:", 0, 0, decltype(ClientRec::Nev)::width},
        {"txEtkezo", &ClientEntry::txEtkezo, u"Név (2. sora):", u"Cím:", 1, 0, decltype(ClientRec::Nev2)::width,
         u"Ez csak a borítékon jelenik meg!"},
        {"txBefizetoCim1", &ClientEntry::txBefizetoCim1, u"Helység:", u"Irszám. város:", 2, 0,
         decltype(ClientRec::Helyseg)::width,
         u"Iránytószám kereséshez helységnév (NEM budapest) beírás után üss ENTER-t!", u"", searchSettlement},
        {"txBefizetoIrsz", &ClientEntry::txBefizetoIrsz, u"Irányítószám:", u"Irányítószám:", 2, 2,
         decltype(ClientRec::Irsz)::width,
         u"Helységnév vagy Budapesti utcanév kereséshez irányítószám beírás után üss ENTER-t!", u"", searchPostcode},
        {"txBefizetoCim2", &ClientEntry::txBefizetoCim2, u"Befizető címe:", u"Ország:", 3, 0,
         decltype(ClientRec::Cim)::width, u"Iránytószám kereséshez Budapesti utcanév beírás után üss ENTER-t!", u"",
         searchStreet},
        {"txBefizAnonosito", &ClientEntry::txBefizAnonosito, u"Befizetőazonosító:", u"Befizetőazonosító:", 4, 0,
         decltype(ClientRec::Azonosito)::width, u"", u"Befizetőazonosító üresen hagyható!"},
        {"txtKozlem3sor", &ClientEntry::txtKozlem3sor, u"Közlemény 3. sora:", u"Közlemény 3. sora:", 5, 0,
         decltype(TwinRec::Kozl3Sor)::width, u"", u"Közlemény 3. sor üresen hagyható!"},
    };
    return boxes;
}

frmFelvet::frmFelvet(const ProgramFolder& folder, Prompts& prompts, std::function<bool()> numbersStand, QWidget* parent)
    : Dialog("frmFelvet", u"Felvétel"_s, parent)
    , folder_(folder)
    , prompts_(prompts)
    , numbersStand_(std::move(numbersStand))
    , frame_(new QGroupBox(u"Ügyfél adatok"_s))
    , foreign_(named(new QCheckBox(u"Külföldi címzés"_s), "chkKulfCim"))
    , again_(named(new QCheckBox, "chkTobbFelvetel"))
    , store_(named(new QPushButton, "cmdRogzites")) {
    auto* boxes = buildBoxes();
    auto* topmost = named(new QCheckBox(u"Ablak legfelül marad"_s), "", u" A programablak mindig látszik "_s);
    topmost->setObjectName(u"Legfelül"_s);
    auto* back = named(new QPushButton(u"&Vissza"_s), "Command3");

    auto* layout = new QGridLayout(this);
    layout->addWidget(boxes, 0, 0, 1, 3);
    layout->addWidget(again_, 1, 0);
    layout->addWidget(topmost, 2, 0);
    layout->addWidget(store_, 2, 1);
    layout->addWidget(back, 2, 2);
    layout->setColumnStretch(0, 1);

    connect(foreign_, &QCheckBox::toggled, this, &frmFelvet::chkKulfCim_Click);
    connect(foreign_, &QCheckBox::clicked, this, [this] { isTouched_ = true; });
    connect(topmost, &QCheckBox::toggled, this, &frmFelvet::stayOnTop);
    connect(store_, &QPushButton::clicked, this, &frmFelvet::cmdRogzites_Click);
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
    // A list of addresses without boxes to fill would do nothing.
    connect(this, &QDialog::finished, this, [this] { Q_EMIT offered({}); });
}

QWidget* frmFelvet::buildBoxes() {
    auto* grid = new QGridLayout(frame_);
    for (const Box& box : boxes()) {
        auto* label = new QLabel(QString::fromUtf16(box.label));
        auto* edit = named(new QLineEdit, box.name, QString::fromUtf16(box.tip));
        label->setBuddy(edit);
        edit->setAccessibleName(label->text());
        edit->setMinimumWidth(edit->fontMetrics().averageCharWidth() * (static_cast<int>(box.width) + 4));
        labels_.push_back(label);
        edits_.push_back(edit);
        grid->addWidget(label, box.row, box.column);
        const bool isAlone = box.column == 0 && box.text != &ClientEntry::txBefizetoCim1 && *box.note == u'\0';
        grid->addWidget(edit, box.row, box.column + 1, 1, isAlone ? 3 : 1);
        if (*box.note != u'\0') grid->addWidget(new QLabel(QString::fromUtf16(box.note)), box.row, 2, 1, 2);
        connectBox(box);
    }
    grid->addWidget(foreign_, static_cast<int>(boxes().size()), 1);
    grid->setColumnStretch(1, 1);
    return frame_;
}

void frmFelvet::connectBox(const Box& box) {
    QLineEdit* edit = edits_.back();
    auto* mark = new WarningMark(edit);
    connect(edit, &QLineEdit::textChanged, mark,
            [mark, &box](const QString& text) { mark->show(storageWarning(text, box.width)); });
    connect(edit, &QLineEdit::textEdited, this, [this, edit] {
        isTouched_ = true;
        sinceChoice_.invalidate();
        edit->setPlaceholderText({});
    });
    connect(edit, &QLineEdit::returnPressed, this, [this, &box] { enterPressed(box); });
}

// 500 and 800 twips from the corner of the main window.
void frmFelvet::place() {
    constexpr QPoint fromCorner(500 / 15, 800 / 15);
    placeAt(parentWidget()->frameGeometry().topLeft() + fromCorner);
}

void frmFelvet::openToAdd() {
    if (!isHalfTyped()) {
        setWindowTitle(u"Új címzett felvétele"_s);
        store_->setText(u"&Felvétel"_s);
        again_->setText(u"Több felvétel egymásután"_s);
        fill({});
        number_ = 0;
        openIn(FelvetelMod::add);
    }
    takeFocus();
}

void frmFelvet::openToModify(int number, const ClientEntry& shown) {
    const Message question{Icon::question, titles::warning,
                           u"Egy új címzett felvétele nincs befejezve, adatai elvesznek!\n\nMehet a módosítás?"_s};
    if (isHalfTyped() && prompts_.ask(question, Answer::no) != Answer::yes) return takeFocus();
    setWindowTitle(u"Címzett módosítása"_s);
    store_->setText(u"&Módosítás"_s);
    again_->setText(u"Több módosítás egymásután"_s);
    fill(shown);
    number_ = number;
    openIn(FelvetelMod::modify);
    takeFocus();
}

void frmFelvet::openIn(FelvetelMod mode) {
    mode_ = mode;
    frame_->setTitle(windowTitle());
    edits_.front()->setFocus();
    edits_.front()->selectAll();
    setVisible(true);
}

void frmFelvet::takeFocus() {
    raise();
    activateWindow();
}

void frmFelvet::endChoice() {
    sinceChoice_.start();
    takeFocus();
}

void frmFelvet::clientClicked(int number, const ClientEntry& stored) {
    if (!isVisible() || isHalfTyped()) return;
    fill(stored);
    number_ = number;
    edits_.front()->setFocus();
}

ClientEntry frmFelvet::entry() const {
    ClientEntry entry;
    for (std::size_t i = 0; i < edits_.size(); ++i)
        entry.*boxes()[i].text = edits_[i]->text();
    entry.chkKulfCim = foreign_->isChecked();
    return entry;
}

// The tick first: it writes into the postcode box.
void frmFelvet::fill(const ClientEntry& entry) {
    foreign_->setChecked(entry.chkKulfCim);
    for (std::size_t i = 0; i < edits_.size(); ++i) {
        edits_[i]->setText(entry.*boxes()[i].text);
        edits_[i]->setPlaceholderText({});
        edits_[i]->home(false);
    }
    isTouched_ = false;
    foundStreet_.clear();
    sinceChoice_.invalidate();
    choice_ = {};
    Q_EMIT offered({});
}

// What a search found or emptied. Ctrl+Z in a box brings back what was typed there.
void frmFelvet::showFound(const ClientEntry& entry) {
    if (box(&ClientEntry::txBefizetoCim2).text() != entry.txBefizetoCim2) foundStreet_ = entry.txBefizetoCim2;
    for (std::size_t i = 0; i < edits_.size(); ++i) {
        const QString& text = entry.*boxes()[i].text;
        if (edits_[i]->text() == text) continue;
        edits_[i]->selectAll();
        edits_[i]->insert(text);
    }
    isTouched_ = true;
}

QLineEdit& frmFelvet::box(QString ClientEntry::*text) const {
    const auto all = boxes();
    const auto found = std::find_if(all.begin(), all.end(), [text](const Box& box) { return box.text == text; });
    return *edits_[static_cast<std::size_t>(found - all.begin())];
}

void frmFelvet::chkKulfCim_Click() {
    const bool isForeign = foreign_->isChecked();
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        labels_[i]->setText(QString::fromUtf16(isForeign ? boxes()[i].foreignLabel : boxes()[i].label));
        edits_[i]->setAccessibleName(labels_[i]->text());
    }
    QLineEdit& postcode = box(&ClientEntry::txBefizetoIrsz);
    if (isForeign) {
        postcode.setText(u" "_s);
        Q_EMIT offered({});
    }
    postcode.setEnabled(!isForeign);
}

// By the window itself: the widget would hide and come back without its focus.
void frmFelvet::stayOnTop(bool onTop) {
    if (QWindow* window = windowHandle()) window->setFlag(Qt::WindowStaysOnTopHint, onTop);
    overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, onTop));
}

void frmFelvet::enterPressed(const Box& box) {
    if (box.search != nullptr) return lookUp(box);
    const auto next = static_cast<std::size_t>(&box - boxes().data()) + 1;
    if (next < edits_.size())
        edits_[next]->setFocus(Qt::TabFocusReason);
    else
        store_->setFocus(Qt::TabFocusReason);
}

void frmFelvet::lookUp(const Box& box) {
    if (foreign_->isChecked()) return; // the boxes mean something else
    if (sinceChoice_.isValid() && !sinceChoice_.hasExpired(QApplication::doubleClickInterval())) return;
    const ClientEntry before = entry();
    if (box.search == searchStreet && !foundStreet_.isEmpty() && before.txBefizetoCim2 == foundStreet_) return;
    ClientEntry after = before;
    choice_ = box.search(folder_, after);
    showFound(after);
    if (const QString& wanted = before.*box.text; (after.*box.text).isEmpty() && !wanted.isEmpty())
        this->box(box.text).setPlaceholderText(u"nincs találat: %1"_s.arg(wanted));
    Q_EMIT offered(choice_);
}

void frmFelvet::choose(qint64 record) {
    ClientEntry entry = this->entry();
    chooseAddress(folder_, choice_.keresesMod, record, entry);
    showFound(entry);
}

void frmFelvet::cmdRogzites_Click() { mode_ == FelvetelMod::add ? add() : modify(); }

void frmFelvet::add() {
    const ClientEntry typed = entry();
    if (const auto missing = firstMissing(typed)) {
        box(missing->text).setFocus();
        return prompts_.tell({Icon::critical, titles::error, missing->message});
    }
    if (!confirms(u"Feladó felvétele"_s, u"felvétele?"_s)) return;
    if (clientCount(folder_) >= maxClientNumber)
        return prompts_.tell({Icon::critical, titles::error, u"Az adatbázisban legfeljebb 32767 ügyfél kezelhető!"_s});
    const qint64 number = addClient(folder_, newClient(typed));
    if (number == 0) return prompts_.tell(messages::notWritten());
    if (again_->isChecked()) {
        ClientEntry next;
        next.txBefizetoCim1 = typed.txBefizetoCim1;
        next.chkKulfCim = typed.chkKulfCim;
        fill(next);
        edits_.front()->setFocus();
    }
    Q_EMIT changed({ClientsChanged::appended, static_cast<int>(number)});
    if (!again_->isChecked()) reject();
    tellStored(u"Felvéve"_s, number, typed.txBefizetoNeve);
}

void frmFelvet::modify() {
    if (number_ < 1 || number_ > clientCount(folder_)) return prompts_.tell(messages::nobodyPicked());
    if (!confirms(u"Feladó módosítása"_s, u"módosítása?"_s)) return reject();
    if (!numbersStand_()) return;
    std::optional<Client> client = readClient(folder_, number_);
    if (!client) return prompts_.tell(messages::nobodyPicked());
    put(entry(), *client);
    if (!modifyClient(folder_, number_, *client)) return prompts_.tell(messages::notWritten());
    isTouched_ = false;
    const int number = number_;
    Q_EMIT changed({ClientsChanged::modified, number});
    if (!again_->isChecked()) reject();
    tellStored(u"Módosítva"_s, number, client->client.Nev.trimmed());
}

bool frmFelvet::confirms(const QString& title, const QString& what) {
    const QString name = edits_.front()->text().toUpper();
    return prompts_.ask({Icon::question, title, u"Biztos mehet \n"_s + name + u"\n\n"_s + what}) == Answer::yes;
}

void frmFelvet::tellStored(const QString& what, qint64 number, const QString& name) {
    Q_EMIT said(u"%1: %2. ügyfél, %3."_s.arg(what, QString::number(number), trimBlanks(name)));
}
