#include "platform/qt_prompts.h"

#include "platform/driver_settings.h"
#include "platform/printer_dialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
    case Icon::none:
        return QMessageBox::NoIcon;
    case Icon::information:
        return QMessageBox::Information;
    case Icon::question:
        return QMessageBox::Question;
    case Icon::warning:
        return QMessageBox::Warning;
    case Icon::critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

void fill(QMessageBox& box, const Message& message) {
    box.setIcon(iconOf(message.icon));
    box.setWindowTitle(message.title);
    // Names of clients stand in the texts, and "A<B" must not be taken for markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    // A box is as wide as its text; a longer title would be cut by the window's frame.
    constexpr int frameButtons = 130;
    const int titleWidth = box.fontMetrics().horizontalAdvance(message.title) + frameButtons;
    static_cast<QGridLayout*>(box.layout())->addItem(new QSpacerItem(titleWidth, 0), 99, 0, 1, -1);
}

// A button that its first letter presses, as in the boxes of the system.
QPushButton* addButton(QMessageBox& box, const QString& caption, QMessageBox::ButtonRole role) {
    QPushButton* button = box.addButton(caption, role);
    button->setShortcut(QKeySequence(caption.left(1)));
    return button;
}

void nameInHungarian(QFileDialog& dialog, const QString& accept) {
    dialog.resize(760, 460);
    for (auto* list : dialog.findChildren<QTreeView*>())
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    dialog.setLabelText(QFileDialog::LookIn, u"Hely:"_s);
    dialog.setLabelText(QFileDialog::FileName, u"Fájlnév:"_s);
    dialog.setLabelText(QFileDialog::FileType, u"Fájltípus:"_s);
    dialog.setLabelText(QFileDialog::Accept, accept);
    dialog.setLabelText(QFileDialog::Reject, u"Mégse"_s);
}

// A dialog that is open is in front of the main window, and so must be its boxes.
QWidget* window() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

// The toolkit has no Hungarian word for a folder.
class IconsWithWords : public QFileIconProvider {
public:
    QString type(const QFileInfo& info) const override {
        if (info.isDir()) return u"Mappa"_s;
        return info.suffix().isEmpty() ? u"Fájl"_s : info.suffix().toUpper() + u" fájl"_s;
    }
};

// A box whose lines can be copied from.
void tellWithDetails(const Message& message) {
    QDialog box(window());
    box.setWindowTitle(message.title);
    auto* text = new QLabel(message.text);
    text->setTextFormat(Qt::PlainText);
    auto* details = new QPlainTextEdit(message.details);
    details->setReadOnly(true);
    details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    details->setTabChangesFocus(true);
    details->setMinimumSize(520, 180);
    auto* ok = new QPushButton(u"OK"_s);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, &box, &QDialog::accept);
    auto* layout = new QVBoxLayout(&box);
    layout->addWidget(text);
    layout->addWidget(details, 1);
    layout->addWidget(ok, 0, Qt::AlignRight);
    ok->setFocus();
    box.exec();
}

} // namespace

QtPrompts::QtPrompts(const QString& folder) : folder_(folder), icons_(std::make_unique<IconsWithWords>()) {}

QtPrompts::~QtPrompts() = default;

// Path that the user picked, empty on cancel.
QString QtPrompts::run(QFileDialog& dialog) {
    dialog.setIconProvider(icons_.get());
    if (!folder_.isEmpty()) dialog.setDirectory(folder_);
    if (dialog.exec() != QDialog::Accepted) return {};
    folder_ = dialog.directory().path();
    return dialog.selectedFiles().value(0);
}

void QtPrompts::tell(const Message& message) {
    if (!message.details.isEmpty()) return tellWithDetails(message);
    QMessageBox box(window());
    fill(box, message);
    box.addButton(u"OK"_s, QMessageBox::AcceptRole);
    box.exec();
}

Answer QtPrompts::ask(const Message& message, Answer preset) {
    QMessageBox box(window());
    fill(box, message);
    QPushButton* yes = addButton(box, u"Igen"_s, QMessageBox::YesRole);
    QPushButton* no = addButton(box, u"Nem"_s, QMessageBox::NoRole);
    box.setDefaultButton(preset == Answer::yes ? yes : no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes ? Answer::yes : Answer::no;
}

QString QtPrompts::openFile(const QString& title, const QString& filter) {
    QFileDialog dialog(window(), title, QString(), filter);
    nameInHungarian(dialog, u"Megnyitás"_s);
    // Any name may be typed: the toolkit's own complaint about a missing file is not in Hungarian.
    dialog.setFileMode(QFileDialog::AnyFile);
    for (;;) {
        QString path = run(dialog);
        if (path.isEmpty() || QFileInfo(path).isFile()) return path;
        tell({Icon::warning, title, u"A fájl nem található:\n"_s + QDir::toNativeSeparators(path)});
    }
}

QString QtPrompts::saveFile(const QString& title, const QString& filter) {
    QFileDialog dialog(window(), title, QString(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave); // takes the captions back
    nameInHungarian(dialog, u"Mentés"_s);
    dialog.setDefaultSuffix(QFileInfo(filter).suffix());
    // The toolkit's own question is not in Hungarian either.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    for (;;) {
        QString path = run(dialog);
        if (path.isEmpty() || !QFileInfo::exists(path)) return path;
        const Message question{Icon::question, title,
                               u"A fájl már létezik, felülírod?\n"_s + QDir::toNativeSeparators(path)};
        if (ask(question, Answer::no) == Answer::yes) return path;
    }
}

std::optional<PrinterChoice> QtPrompts::choosePrinter(const QStringList& printers, int current,
                                                      const QString& summary) {
    const auto ask = hasDriverDialog() ? askDriverSettings : PrinterDialog::AskDriver();
    PrinterDialog dialog(printers, current, summary, ask, window());
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.choice();
}
