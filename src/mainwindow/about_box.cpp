#include "mainwindow/about_box.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmAbout::frmAbout(const std::function<void()>& openSystemInformation, QWidget* parent)
    : Dialog("frmAbout", QStringLiteral("Névjegy"), parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 22, 28, 18);
    layout->setSpacing(10);
    auto* name = new QLabel(QStringLiteral("Tarlimo program"));
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    name->setFont(large);
    layout->addWidget(name);
    layout->addWidget(new QLabel(QStringLiteral("Változat: ") + QStringLiteral(TARLIMO_VERSION)));
    auto* sentence = new QLabel(QStringLiteral("Postai csekkek, tértivevények, borítékok és etikettek kitöltése és "
                                               "nyomtatása az ügyfelek adataival."));
    sentence->setWordWrap(true);
    sentence->setMinimumWidth(340);
    layout->addWidget(sentence);
    auto* buttons = new QDialogButtonBox;
    if (openSystemInformation) {
        QPushButton* system =
            buttons->addButton(QStringLiteral("&Rendszerinformáció..."), QDialogButtonBox::ActionRole);
        connect(system, &QPushButton::clicked, this, openSystemInformation);
    }
    QPushButton* ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    layout->addSpacing(6);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}
