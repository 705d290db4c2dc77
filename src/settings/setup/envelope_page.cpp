#include "controls/named.h"
#include "settings/setup/envelope_types.h"
#include "settings/setup/font_box.h"
#include "settings/setup/setup_pages.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

// A size below 1 point prints nothing: 10 stands for it.
constexpr int sizeOr10(int points) { return points < 1 ? 10 : points; }

constexpr BoxRow<boritek> addresseeSize(const char* name, const char16_t* label) {
    return {{name, label, &numberBox, Restore::no},
            [](const boritek& set) { return QString::number(sizeOr10(set.txtBoritekNevBetumeret)); },
            [](boritek& set, QStringView text) {
                set.txtBoritekNevBetumeret = static_cast<std::int16_t>(sizeOr10(leadingI16(text)));
            }};
}

constexpr BoxRow<boritek> sender[] = {
    text<&boritek::txtBoritekFeladoNev>("txtBoritekFeladoNev", u"Név:"),
    text<&boritek::txtBoritekFeladoCim1>("txtBoritekFeladoCim1", u"Helység:"),
    text<&boritek::txtBoritekFeladoCim2>("txtBoritekFeladoCim2", u"Cím:"),
    text<&boritek::txtBoritekFeladoIrSzam>("txtBoritekFeladoIrSzam", u"Irányítószám:"),
    font<&boritek::cmbBoritekNevBetutipus>("cmbBoritekNevBetutipus", u"Betűtípus:"),
    addresseeSize("txtBoritekNevBetumeret", u"Címzett betűmérete (pont):"),
    number<&boritek::txtBoritekFeladoBetumeret>("txtBoritekFeladoBetumeret", u"Feladó betűmérete (pont):"),
};

// The sender's frame: the sample text follows font and size, and a size below 1 is replaced, but not while it is typed.
void addSender(PageBuilder& page, const SetupContext& context) {
    RecordBoxes<boritek> boxes(context.folder);
    auto* frame = new BoxFrame({"Frame2_1", u"Feladó neve és címe"});
    const std::vector<QWidget*> widgets = page.add<boritek>(*frame, sender, boxes);
    const auto* name = static_cast<QLineEdit*>(widgets[0]);
    const auto* font = static_cast<FontBox*>(widgets[4]);
    auto* size = static_cast<QLineEdit*>(widgets[5]);

    auto* lbMinta = named(new QLabel, "lbMinta");
    lbMinta->setTextFormat(Qt::PlainText);
    lbMinta->setFixedHeight(48);
    lbMinta->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // whatever the size, the page stays as it is
    auto* line = new QHBoxLayout;
    line->addWidget(lbMinta);
    frame->addRow(line);
    page.addSaves(*frame, {{"cmdBoritekFeladoSave", u"&Feladó rögzítése", {}, [boxes] { return boxes.store(); }}});
    page.place(frame, {1, 1});
    boxes.fill();

    const auto showSample = [=] {
        lbMinta->setText(name->text());
        lbMinta->setFont(QFont(font->currentText(), sizeOr10(leadingI16(size->text()))));
    };
    const auto replaceSize = [size] {
        if (leadingI16(size->text()) < 1) size->setText(QString::number(sizeOr10(0)));
    };
    QObject::connect(page.page(), &SetupPage::changed, lbMinta, showSample);
    QObject::connect(font, &QComboBox::editTextChanged, size, replaceSize);
    QObject::connect(size, &QLineEdit::editingFinished, size, replaceSize);
    showSample();
}

} // namespace

SetupPage* envelopePage(const SetupContext& context) {
    PageBuilder page(context);
    new EnvelopeTypes(page, context); // belongs to the page
    addSender(page, context);
    return page.finish();
}
