#include "picture/dialogs/picture_browser.h"

#include "controls/folder_chooser.h"
#include "controls/named.h"
#include "picture/dialogs/folder_error.h"
#include "picture/picture_file.h"
#include "records/record_file.h"
#include "settings/other_settings.h"

#include <QCheckBox>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int previewTwips = 4215;
constexpr int previewPixels = previewTwips / 15;

QLineEdit* pathLabel(const char* name) {
    auto* box = named(new QLineEdit, name); // a label would cut the end of a long path, which says most
    box->setReadOnly(true);
    box->setFrame(false);
    box->setFocusPolicy(Qt::NoFocus);
    QPalette palette = box->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    box->setPalette(palette);
    return box;
}

// What is typed is part of a name: brackets mean themselves, * and ? any letters.
QString narrowPattern(const QString& typed) {
    QString escaped;
    for (const QChar letter : typed)
        escaped += letter == u'[' || letter == u']' ? u'[' + QString(letter) + u']' : QString(letter);
    return u'*' + escaped + u"*.jpg"_s;
}

bool hasPictureEnding(const QString& name) {
    const QString ending = name.right(3).toUpper();
    return ending == u"JPG" || ending == u"GIF" || ending == u"BMP";
}

} // namespace

kep_browse::kep_browse(const ProgramFolder& folder, Prompts& prompts, QWidget* parent)
    : Dialog("kep_browse", u"Kép keresés"_s, parent)
    , folder_(folder)
    , prompts_(prompts)
    , Label1_(pathLabel("Label1"))
    , folders_(new FolderChooser)
    , Command1_(named(new QPushButton, "Command1", u"Aktuális meghajtó gyökérkönyvtárba ugrás..."_s))
    , File1_(named(new QListView, "File1"))
    , files_(new QStringListModel(this))
    , Text1_(named(new QLineEdit, "Text1"))
    , allFiles_(named(new QRadioButton(u"*.*   összes"_s), "Option1_0"))
    , pictures_(named(new QRadioButton(u"*.jpg; *.gif; *.bmp -  kép fájl"_s), "Option1_1"))
    , Check1_(
          named(new QCheckBox(u"Preview"_s), "Check1", u"Képek előnézete. Lassítja a futást gyengébb gépeknél..."_s))
    , Image1_(named(new QLabel, "Image1"))
    , Command2_(named(new QPushButton(u"&Rendben"_s), "Command2", u"A kijelölt kép elfogadása."_s))
    , Command3_(named(new QPushButton(u"&Mégsem"_s), "Command3")) {
    build();
    connectParts();
    openLastFolder();
}

void kep_browse::build() {
    soon_.setSingleShot(true);
    pictures_->setChecked(true);
    Check1_->setChecked(true);
    Command2_->setEnabled(false);
    Command2_->setDefault(true);

    auto* folders = new QVBoxLayout;
    folders->addWidget(folders_, 1);
    folders->addWidget(Command1_, 0, Qt::AlignLeft);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command2_);
    buttons->addWidget(Command3_);
    auto* grid = new QGridLayout(this);
    grid->addWidget(Label1_, 0, 0, 1, 3);
    grid->addLayout(folders, 1, 0);
    grid->addLayout(buildFiles(), 1, 1);
    grid->addLayout(buildPreview(), 1, 2);
    grid->addLayout(buttons, 2, 0, 1, 3);
    for (const int column : {0, 1})
        grid->setColumnStretch(column, 1);
    Text1_->setFocus();
}

QLayout* kep_browse::buildFiles() {
    File1_->setAccessibleName(u"Fájl"_s);
    File1_->setModel(files_);
    File1_->setUniformItemSizes(true);
    File1_->setEditTriggers(QListView::NoEditTriggers);
    auto* label = named(new QLabel(u"&Keresés szűkítése:"_s), "Label2");
    label->setBuddy(Text1_);
    auto* files = new QVBoxLayout;
    files->addWidget(label);
    files->addWidget(Text1_);
    files->addWidget(File1_, 1);
    files->addWidget(pictures_);
    files->addWidget(allFiles_);
    return files;
}

QLayout* kep_browse::buildPreview() {
    Image1_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    Image1_->setAlignment(Qt::AlignCenter);
    const int side = previewPixels + 2 * Image1_->frameWidth();
    Image1_->setFixedSize(side, side);
    auto* preview = new QVBoxLayout;
    preview->addWidget(Image1_);
    preview->addWidget(Check1_);
    preview->addStretch();
    return preview;
}

void kep_browse::connectParts() {
    connect(folders_, &FolderChooser::pathChanged, this, &kep_browse::Dir1_Change);
    connect(folders_, &FolderChooser::driveFailed, this, &kep_browse::HibaUzenet);
    connect(Command1_, &QPushButton::clicked, this, &kep_browse::Command1_Click);
    for (const QRadioButton* option : {allFiles_, pictures_})
        connect(option, &QRadioButton::clicked, this, &kep_browse::refreshFiles);
    connect(Check1_, &QCheckBox::clicked, this, [this] { File1_->setFocus(); });
    connect(Text1_, &QLineEdit::textChanged, this, &kep_browse::Text1_Change);
    connect(File1_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& file) { File1_Click(file.data().toString()); });
    connect(File1_, &QListView::doubleClicked, Command2_, &QPushButton::click);
    connect(&soon_, &QTimer::timeout, this, &kep_browse::showFile);
    connect(Command2_, &QPushButton::clicked, this, &QDialog::accept);
    connect(Command3_, &QPushButton::clicked, this, &QDialog::reject);
}

void kep_browse::openLastFolder() {
    const QString last = readRecord<BrowsePat>(folder_).BrowseUtvonal.trimmed();
    folders_->setPath(!last.isEmpty() && QFileInfo(last).isDir() ? last : folder_.path());
    refreshFiles();
}

void kep_browse::done(int answer) {
    updateRecord<BrowsePat>(folder_,
                            [this](BrowsePat& stored) { stored.BrowseUtvonal.set(trimBlanks(Label1_->text())); });
    Dialog::done(answer);
}

QStringList kep_browse::currentPattern() const {
    return pictures_->isChecked() ? QStringList{u"*.jpg"_s, u"*.gif"_s, u"*.bmp"_s} : QStringList{u"*"_s};
}

void kep_browse::listFiles(const QStringList& patterns) {
    const QDir folder(folders_->path());
    files_->setStringList(folder.entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase));
}

void kep_browse::refreshFiles() {
    listFiles(currentPattern());
    Label1_->setText(folders_->path());
    Command1_->setText(folders_->drive());
    Command1_->setEnabled(!folders_->drive().isEmpty());
}

void kep_browse::selectFirst() {
    File1_->setFocus();
    File1_->setCurrentIndex(files_->index(0));
}

void kep_browse::Dir1_Change() {
    refreshFiles();
    if (files_->rowCount() > 0) selectFirst();
}

void kep_browse::Command1_Click() {
    folders_->setPath(folders_->drive());
    refreshFiles();
}

void kep_browse::Text1_Change(const QString& text) {
    listFiles({narrowPattern(text)});
    if (files_->rowCount() != 1) return;
    selectFirst();
    Text1_->setFocus();
}

void kep_browse::File1_Click(const QString& name) {
    if (name.isEmpty()) return; // the list is being filled
    Command2_->setEnabled(false);
    Command2_->setText(u"Kis Türelem..."_s);
    kepFajl_ = QDir::toNativeSeparators(QDir(folders_->path()).filePath(name));
    soon_.start(0);
}

void kep_browse::showFile() {
    Command2_->repaint(); // asks for patience
    const bool isPicture = Check1_->isChecked() ? KepBetoltes2() : hasPictureEnding(kepFajl_);
    Command2_->setEnabled(isPicture);
    Command2_->setText(isPicture ? u"&Rendben"_s : u"Nem kép fájl..."_s);
}

// A picture larger than the preview shrinks into it; a smaller one keeps its own size.
bool kep_browse::KepBetoltes2() {
    const double scale = devicePixelRatioF();
    const int side = qRound(previewPixels * scale);
    const PictureFile file = readPicture(kepFajl_, side);
    if (file.image.isNull()) {
        Image1_->clear();
        return false;
    }
    const QSizeF own = ownSize(file.pixels);
    const bool fits = std::max(own.width(), own.height()) <= previewTwips;
    const QSize shown = fits ? file.pixels * scale : file.pixels.scaled(side, side, Qt::KeepAspectRatio);
    QPixmap pixmap = QPixmap::fromImage(
        file.image.scaled(shown.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(scale);
    Image1_->setPixmap(pixmap);
    return true;
}

void kep_browse::HibaUzenet(const QString& root) {
    const QString text = folderError(root);
    if (!text.isEmpty()) prompts_.tell({Icon::none, u"! H I B A ! "_s, text});
}
