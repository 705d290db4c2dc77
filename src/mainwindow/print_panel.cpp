#include "mainwindow/print_panel.h"

#include "controls/entry_combo.h"
#include "controls/named.h"
#include "mainwindow/print_button.h"
#include "prompts/messages.h"
#include "records/record_file.h"
#include "settings/general_settings.h"

#include <QButtonGroup>
#include <QFileInfo>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyleOptionButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto chosenPrinterFile = "nyomtato.txt"; // its name in UTF-8
constexpr int largestSample = 170;
constexpr int smallestSample = 56;

// An option whose long caption stands on two lines, since the panel would be wide through it alone.
class TwoLineOption : public QRadioButton {
public:
    using QRadioButton::QRadioButton;
    QSize sizeHint() const override {
        QStyleOptionButton option;
        initStyleOption(&option);
        const QSize text = fontMetrics().size(Qt::TextShowMnemonic, option.text);
        return style()->sizeFromContents(QStyle::CT_RadioButton, &option, text, this);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void initStyleOption(QStyleOptionButton* option) const override {
        QRadioButton::initStyleOption(option);
        const qsizetype middle = option->text.indexOf(u' ', option->text.size() / 2);
        if (middle > 0) option->text[middle] = u'\n';
    }
};

} // namespace

// Takes the room that is left, down to a size that still tells how the paper lies.
class SamplePicture : public QLabel {
public:
    SamplePicture() {
        setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
        setAlignment(Qt::AlignCenter);
        setWordWrap(true);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
        setMinimumHeight(smallestSample);
        setMaximumHeight(largestSample);
    }
    void showFile(const ProgramFolder& folder, const QString& name) {
        picture_ = QImage(folder.file(name));
        setText(picture_.isNull() ? u"Hiányzó kép:\n"_s + name : QString());
        update();
    }
    QSize sizeHint() const override { return {largestSample, largestSample}; }

protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (picture_.isNull()) return;
        const QImage scaled =
            picture_.scaled(contentsRect().size() * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QRect place(QPoint(), scaled.size() / devicePixelRatioF());
        place.moveCenter(contentsRect().center());
        QPainter(this).drawImage(place, scaled);
    }

private:
    QImage picture_;
};

PrintPanel::PrintPanel(const ProgramFolder& folder, Prompts& prompts, QWidget* parent)
    : QGroupBox(u"Nyomtatás"_s, parent)
    , folder_(folder)
    , prompts_(prompts)
    , print_(named(new PrintButton(u"&Nyomtatás"_s), "cmdPrint"))
    , batch_(named(new PrintButton(u"&Csoportos Nyomtatás"_s), "cmdCsPrint"))
    , sample_(named(new SamplePicture, "Picture2"))
    , deviceName_(named(new QLabel, "lbNyomtato")) {
    setObjectName(u"Frame1"_s);
    batch_->hide();
    for (PrintButton* button : {print_, batch_})
        button->setToolTip(u"Nyomtatás (Ctrl+P)"_s);
    deviceName_->setTextFormat(Qt::PlainText);
    deviceName_->setAlignment(Qt::AlignCenter);
    deviceName_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a long name must not widen the panel
    auto* column = new QVBoxLayout(this);
    column->setSpacing(4);
    column->addWidget(print_);
    column->addWidget(batch_);
    column->addWidget(deviceName_);
    column->addLayout(buildFeeds());
    column->addWidget(sample_, 1);
    column->addStretch();
    column->addWidget(buildDeviceChoice());

    connect(print_, &QPushButton::clicked, this, &PrintPanel::printPressed);
    connect(batch_, &QPushButton::clicked, this, &PrintPanel::batchPressed);
    connect(upright_, &QRadioButton::toggled, this, &PrintPanel::showSample);
}

// A group for each pair: options that only share a parent would lose their mark together.
QLayout* PrintPanel::buildFeeds() {
    upright_ = named(new QRadioButton(u"Álló"_s), "OpOrientacioAllo");
    sideways_ = named(new QRadioButton(u"Fekvő"_s), "OpOrientacioFekvo");
    upright_->setChecked(true);
    auto* group = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QRadioButton* option : {upright_, sideways_}) {
        group->addButton(option);
        row->addWidget(option);
        row->addStretch();
    }
    return row;
}

QWidget* PrintPanel::buildDeviceChoice() {
    auto* frame = named(new QWidget, "Frame10");
    chosenDevice_ = named(new QRadioButton(u"Kijelölt nyomtató használata"_s), "opPrinter_0");
    systemDevice_ = named(new TwoLineOption(u"Windows alapértelmezett nyomtató használata"_s), "opPrinter_1");
    chosenDevice_->setChecked(true);
    auto* group = new QButtonGroup(this);
    group->addButton(chosenDevice_);
    group->addButton(systemDevice_);
    printers_ = named(new SteadyCombo, "Combo2");
    printers_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    printNo_ = named(new QLabel, "lbPrintNo");
    printNo_->hide();
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(3);
    for (QWidget* widget : std::initializer_list<QWidget*>{chosenDevice_, printers_, systemDevice_, printNo_})
        layout->addWidget(widget);

    // `activated`, not the index' change: filling the box must not overwrite the stored number.
    connect(printers_, &QComboBox::activated, this, [this](int index) {
        showPrinter(index);
        storePrinter(index);
    });
    connect(systemDevice_, &QRadioButton::toggled, this, &PrintPanel::storeDevice);
    return frame;
}

void PrintPanel::showDeviceName() {
    const QString name = isSystemDefault() ? defaultName_ : printers_->currentText();
    deviceName_->setText(u"Nyomtató: "_s + name);
    deviceName_->setToolTip(name);
}

void PrintPanel::offerPrinters(const QStringList& printers, int systemDefault) {
    const QSignalBlocker block(printers_);
    defaultName_ = printers.value(systemDefault);
    printers_->clear();
    printers_->addItems(printers);
    printers_->setCurrentIndex(-1);
}

void PrintPanel::restorePrinter(int lbPrintNo) {
    const QString path = folder_.file(QString::fromLatin1(chosenPrinterFile));
    if (!QFileInfo::exists(path)) {
        showPrinter(lbPrintNo);
        if (printers_->currentIndex() >= 0) storePrinter(lbPrintNo);
        return;
    }
    const QString name =
        QString::fromUtf8(settings_file::read(folder_, QString::fromLatin1(chosenPrinterFile))).remove(u'\n');
    const int place = printers_->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    showPrinter(place);
    if (place == lbPrintNo) return;
    // Not the one that has moved to its number: print routines take the number. The name waits for its printer.
    store([place](Set& set) { set.lbPrintNo = static_cast<std::int16_t>(place); });
    if (place < 0)
        prompts_.tell({Icon::information, titles::attention,
                       u"A(z) ''%1'' nyomtató nem található,\nválassz másikat!"_s.arg(name)});
}

void PrintPanel::showPrinter(int place) {
    const QSignalBlocker block(printers_);
    printNo_->setText(QString::number(place));
    printers_->setCurrentIndex(place < printers_->count() ? place : -1);
    showDeviceName();
}

void PrintPanel::storePrinter(int place) {
    const QByteArray name = printers_->itemText(place).toUtf8();
    const bool named = replaceFile(folder_.file(QString::fromLatin1(chosenPrinterFile)), name + '\n');
    const bool numbered =
        updateRecord<Set>(folder_, [place](Set& set) { set.lbPrintNo = static_cast<std::int16_t>(place); });
    if (!named || !numbered) prompts_.tell(messages::settingNotWritten());
}

void PrintPanel::selectDevice(bool systemDefault) { (systemDefault ? systemDevice_ : chosenDevice_)->setChecked(true); }

bool PrintPanel::isSystemDefault() const { return systemDevice_->isChecked(); }

void PrintPanel::storeDevice() {
    const bool systemDefault = isSystemDefault();
    printers_->setEnabled(!systemDefault);
    showDeviceName();
    store([systemDefault](Set& set) { set.opPrinter_1 = systemDefault; });
    Q_EMIT deviceSelected();
}

// The print routines take the device from the record: one that isn't stored doesn't print.
template<class Change>
void PrintPanel::store(Change change) {
    if (!updateRecord<Set>(folder_, change)) prompts_.tell(messages::settingNotWritten());
}

Feed PrintPanel::feed() const { return upright_->isChecked() ? Feed::upright : Feed::sideways; }

void PrintPanel::showTab(const TabRow& tab) {
    const bool hasSideways = tab.sidewaysSample != nullptr;
    sideways_->setEnabled(hasSideways);
    if (!hasSideways) upright_->setChecked(true);
    sampleOf_ = &tab;
    showSample();
}

void PrintPanel::showSample() {
    const char* name = feed() == Feed::upright ? sampleOf_->uprightSample : sampleOf_->sidewaysSample;
    sample_->showFile(folder_, QString::fromLatin1(name));
}

void PrintPanel::showButton(bool batch, int clients) {
    print_->setVisible(!batch);
    batch_->setVisible(batch);
    batch_->setNote(u"%1 ügyfél kijelölve"_s.arg(clients));
}

void PrintPanel::setButtonsEnabled(bool enabled) {
    print_->setEnabled(enabled);
    batch_->setEnabled(enabled);
}

void PrintPanel::pressByKey() { (batch_->isHidden() ? print_ : batch_)->pressByKey(); }
