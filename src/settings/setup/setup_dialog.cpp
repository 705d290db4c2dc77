#include "settings/setup/setup_dialog.h"

#include "controls/named.h"
#include "settings/setup/setup_pages.h"

#include <QPushButton>
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
    : Dialog("frmSetup", QStringLiteral("Beállítások"), parent)
    , SSTab1_(named(new QTabWidget, "SSTab1")) {
    addPages(folder, prompts, fonts, setupOldal);

    auto* back = named(new QPushButton(QStringLiteral("&Vissza")), "Command3");
    connect(back, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(SSTab1_, 1);
    layout->addWidget(back, 0, Qt::AlignRight);
}

void frmSetup::addPages(const ProgramFolder& folder, Prompts& prompts, const QStringList& fonts, int setupOldal) {
    for (const PageRow& row : pages) {
        const int place = SSTab1_->addTab(row.make({folder, prompts, fonts}), QString::fromUtf16(row.caption));
        if (row.setupOldal == setupOldal) SSTab1_->setCurrentIndex(place);
    }
}
