#include "settings/setup/setup_dialog.h"

#include "settings/setup/setup_pages.h"

#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

struct PageRow {
    int setupOldal; // the number by which the main window asks for it
    const char16_t* caption;
    QWidget* (*make)(const SetupContext&);
};

// In the order of the tabs.
constexpr PageRow pages[] = {
    {0, u"Csekk", yellowCheckPage},
    {5, u"Rózsaszín csekk", pinkCheckPage},
};

} // namespace

frmSetup::frmSetup(const ProgramFolder& folder, Prompts& prompts, const QStringList& fonts, int setupOldal,
                   QWidget* parent)
    : QDialog(parent)
    , SSTab1_(new QTabWidget) {
    setObjectName(QStringLiteral("frmSetup"));
    setWindowTitle(QStringLiteral("Beállítások"));
    SSTab1_->setObjectName(QStringLiteral("SSTab1"));
    addPages(folder, prompts, fonts, setupOldal);

    auto* back = new QPushButton(QStringLiteral("&Vissza"));
    back->setObjectName(QStringLiteral("Command3"));
    back->setAutoDefault(false);
    connect(back, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(SSTab1_, 1);
    layout->addWidget(back, 0, Qt::AlignRight);
    centre();
}

void frmSetup::addPages(const ProgramFolder& folder, Prompts& prompts, const QStringList& fonts, int setupOldal) {
    for (const PageRow& row : pages) {
        const int place = SSTab1_->addTab(row.make({folder, prompts, fonts}), QString::fromUtf16(row.caption));
        if (row.setupOldal == setupOldal) SSTab1_->setCurrentIndex(place);
    }
}

// As large as its pages want, but never beyond the screen: there they scroll.
void frmSetup::centre() {
    const QScreen* shownOn = parentWidget() ? parentWidget()->screen() : screen();
    constexpr QMargins windowFrame(8, 32, 8, 8);
    const QRect room = shownOn->availableGeometry().marginsRemoved(windowFrame);
    const QSize size = sizeHint().boundedTo(room.size());
    setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, room));
}
