#include "settings/setup/setup_dialog.h"

#include "controls/named.h"
#include "settings/setup/setup_pages.h"

#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

struct PageRow {
    const char16_t* caption;
    SetupPage* (*make)(const SetupContext&);
};

// In the order of their numbers, by which the main window asks for them.
constexpr PageRow pages[] = {
    {u"Csekk", yellowCheckPage},
    {u"Tértivevény", returnReceiptPage},
    {u"Feladóvevény", postingReceiptPage},
    {u"Boríték", envelopePage},
    {u"Térti Irathoz", documentReceiptPage},
    {u"Rózsaszín csekk", pinkCheckPage},
    {u"Utánvételi lap", cashOnDeliveryPage},
};

} // namespace

frmSetup::frmSetup(const ProgramFolder& folder, Prompts& prompts, const DeviceFonts& fonts, int setupOldal,
                   QWidget* parent)
    : Dialog("frmSetup", QStringLiteral("Beállítások"), parent)
    , SSTab1_(named(new QTabWidget, "SSTab1")) {
    addPages({folder, prompts, fonts});
    SSTab1_->setCurrentIndex(setupOldal);

    auto* back = named(new QPushButton(QStringLiteral("&Vissza")), "Command3");
    connect(back, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(SSTab1_, 1);
    layout->addWidget(back, 0, Qt::AlignRight);
}

void frmSetup::addPages(const SetupContext& context) {
    for (const PageRow& row : pages) {
        SetupPage* page = row.make(context);
        const QString caption = QString::fromUtf16(row.caption);
        const int place = SSTab1_->addTab(page, caption);
        connect(page, &SetupPage::changed, this, [this, page, place, caption] {
            SSTab1_->setTabText(place, page->isEdited() ? caption + QStringLiteral(" *") : caption);
        });
    }
}
