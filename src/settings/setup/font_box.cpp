#include "settings/setup/font_box.h"

#include <QLabel>

FontBox::FontBox(const DeviceFonts& fonts, QWidget* parent)
    : EntryCombo(parent)
    , knows_(fonts.knows)
    , mark_(new WarningMark(lineEdit()))
    , sample_(new QLabel(QStringLiteral("Árvíztűrő tükörfúrógép 1234"), parent)) {
    setMinimumContentsLength(16);
    setMaxVisibleItems(20);
    offer(fonts.names);
    // Whatever the font, nothing else on the page moves.
    sample_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    sample_->setMinimumWidth(sample_->sizeHint().width());
    connect(this, &QComboBox::editTextChanged, this, &FontBox::follow);
    follow();
}

void FontBox::showFont(const QString& name) {
    showText(name);
    follow();
}

void FontBox::follow() {
    const QString name = currentText();
    const bool isKnown = knows_(name);
    mark_->show(isKnown ? QString() : QStringLiteral("A nyomtató nem ismeri ezt a betűtípust"));
    sample_->setEnabled(isKnown);
    sample_->setFont(QFont(name, font().pointSize()));
}
