#include "mainwindow/print_panel.h"

#include "controls/entry_combo.h"
#include "records/record_file.h"
#include "settings/general_settings.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

// Pictures of how the stationery lies in the printer. Labels have no sideways feed.
constexpr const char* samples[8][2] = {
    {"csekkkepallo.jpg", "csekkkepfekvo.jpg"},
    {"Tertikepallo.jpg", "Tertikepfekvo.jpg"},
    {"Feladokepallo.jpg", "Feladokepfekvo.jpg"},
    {"Boritekkepallo.jpg", "Boritekkepfekvo.jpg"},
    {"cimkekep.jpg", nullptr},
    {"Iratkepallo.jpg", "Iratkepfekvo.jpg"},
    {"RcsekkkepAllo.jpg", "RcsekkkepFekvo.jpg"},
    {"UtanveteliLapAllo.jpg", "UtanveteliLapfekvo.jpg"},
};
constexpr int labelTab = 4;
constexpr int sampleSize = 170;

} // namespace

PrintPanel::PrintPanel(const ProgramFolder& folder, QWidget* parent)
    : QGroupBox(QStringLiteral("Nyomtatás"), parent)
    , folder_(folder)
    , print_(new QPushButton(QStringLiteral("&Nyomtatás")))
    , batch_(new QPushButton(QStringLiteral("&Csoportos Nyomtatás")))
    , upright_(new QRadioButton(QStringLiteral("Álló")))
    , sideways_(new QRadioButton(QStringLiteral("Fekvő")))
    , sample_(new QLabel) {
    setObjectName(QStringLiteral("Frame1"));
    print_->setObjectName(QStringLiteral("cmdPrint"));
    batch_->setObjectName(QStringLiteral("cmdCsPrint"));
    upright_->setObjectName(QStringLiteral("OpOrientacioAllo"));
    sideways_->setObjectName(QStringLiteral("OpOrientacioFekvo"));
    sample_->setObjectName(QStringLiteral("Picture2"));
    upright_->setChecked(true);
    batch_->hide();
    for (QPushButton* button : {print_, batch_})
        button->setMinimumHeight(34);
    sample_->setFixedSize(sampleSize, sampleSize);
    sample_->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);

    deviceName_ = new QLabel;
    deviceName_->setObjectName(QStringLiteral("lbNyomtato"));
    deviceName_->setTextFormat(Qt::PlainText);
    deviceName_->setAlignment(Qt::AlignCenter);
    deviceName_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a long name must not widen the panel
    auto* feeds = new QHBoxLayout;
    feeds->addStretch();
    feeds->addWidget(upright_);
    feeds->addSpacing(12);
    feeds->addWidget(sideways_);
    feeds->addStretch();
    auto* column = new QVBoxLayout(this);
    column->addWidget(print_);
    column->addWidget(batch_);
    column->addWidget(deviceName_);
    column->addSpacing(4);
    column->addLayout(feeds);
    column->addWidget(sample_, 0, Qt::AlignHCenter);
    column->addStretch();
    column->addWidget(buildDeviceChoice());

    connect(print_, &QPushButton::clicked, this, &PrintPanel::printPressed);
    connect(batch_, &QPushButton::clicked, this, &PrintPanel::batchPressed);
    connect(upright_, &QRadioButton::toggled, this, &PrintPanel::showSample);
}

QWidget* PrintPanel::buildDeviceChoice() {
    auto* frame = new QWidget;
    frame->setObjectName(QStringLiteral("Frame10"));
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(3);
    chosenDevice_ = new QRadioButton(QStringLiteral("Kijelölt nyomtató használata"));
    chosenDevice_->setObjectName(QStringLiteral("opPrinter_0"));
    systemDevice_ = new QRadioButton(QStringLiteral("Windows alapértelmezett nyomtató használata"));
    systemDevice_->setObjectName(QStringLiteral("opPrinter_1"));
    chosenDevice_->setChecked(true);
    printers_ = new SteadyCombo;
    printers_->setObjectName(QStringLiteral("Combo2"));
    printers_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    printNo_ = new QLabel;
    printNo_->setObjectName(QStringLiteral("lbPrintNo"));
    printNo_->hide();
    for (QWidget* widget : std::initializer_list<QWidget*>{chosenDevice_, printers_, systemDevice_, printNo_})
        layout->addWidget(widget);

    // `activated`, not the index' change: filling the box must not overwrite the stored number.
    connect(printers_, &QComboBox::activated, this, [this](int index) {
        printNo_->setText(QString::number(index));
        updateRecord<Set>(folder_, [index](Set& set) { set.lbPrintNo = static_cast<std::int16_t>(index); });
        showDeviceName();
    });
    connect(systemDevice_, &QRadioButton::toggled, this, &PrintPanel::storeDevice);
    return frame;
}

void PrintPanel::showDeviceName() {
    deviceName_->setText(QStringLiteral("Nyomtató: ") + (isSystemDefault() ? defaultName_ : printers_->currentText()));
}

void PrintPanel::offerPrinters(const QStringList& printers, int systemDefault) {
    const QSignalBlocker block(printers_);
    defaultName_ = printers.value(systemDefault);
    printers_->clear();
    printers_->addItems(printers);
    printers_->setCurrentIndex(-1);
}

void PrintPanel::showPrinter(int lbPrintNo) {
    const QSignalBlocker block(printers_);
    printNo_->setText(QString::number(lbPrintNo));
    printers_->setCurrentIndex(lbPrintNo < printers_->count() ? lbPrintNo : -1);
    showDeviceName();
}

void PrintPanel::selectDevice(bool systemDefault) { (systemDefault ? systemDevice_ : chosenDevice_)->setChecked(true); }

bool PrintPanel::isSystemDefault() const { return systemDevice_->isChecked(); }

void PrintPanel::storeDevice() {
    const bool systemDefault = isSystemDefault();
    printers_->setEnabled(!systemDefault);
    showDeviceName();
    updateRecord<Set>(folder_, [systemDefault](Set& set) { set.opPrinter_1 = systemDefault; });
    Q_EMIT deviceSelected();
}

Feed PrintPanel::feed() const { return upright_->isChecked() ? Feed::upright : Feed::sideways; }

void PrintPanel::showTab(int tab) {
    tab_ = tab;
    sideways_->setEnabled(tab != labelTab);
    if (tab == labelTab) upright_->setChecked(true);
    showSample();
}

void PrintPanel::showSample() {
    const char* name = samples[tab_][feed() == Feed::upright ? 0 : 1];
    if (name == nullptr) return;
    const QImage picture(folder_.file(QString::fromLatin1(name)));
    if (picture.isNull()) {
        sample_->setText(QStringLiteral("Hiányzó kép:\n") + QString::fromLatin1(name));
        return;
    }
    const double ratio = devicePixelRatioF();
    QPixmap scaled = QPixmap::fromImage(
        picture.scaled(QSize(sampleSize - 2, sampleSize - 2) * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    scaled.setDevicePixelRatio(ratio);
    sample_->setPixmap(scaled);
}

void PrintPanel::showButton(bool batch) {
    print_->setVisible(!batch);
    batch_->setVisible(batch);
}

void PrintPanel::setButtonsEnabled(bool enabled) {
    print_->setEnabled(enabled);
    batch_->setEnabled(enabled);
    if (enabled) (batch_->isHidden() ? print_ : batch_)->setFocus();
}
