#include "tour.h"

#include "mainwindow/stationery_page.h"

#include <QDialog>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <cmath>

namespace {

constexpr int envelopeTab = 3;

// An emblem such as an office has: the picture is drawn, so that no file has to be delivered.
QImage emblem() {
    QImage image(900, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0x2c, 0x5c, 0x8f));
    painter.drawEllipse(QRect(30, 60, 480, 480));
    painter.setBrush(QColor(0xe3, 0xb6, 0x2c));
    painter.drawRect(QRect(450, 180, 420, 240));
    return image;
}

QRectF placeOf(const PrintJob& job, std::size_t page) {
    for (const PlacedItem& item : job.pages.at(page).items)
        if (const auto* picture = std::get_if<PlacedPicture>(&item))
            return {picture->x, picture->y, picture->width, picture->height};
    return {};
}

} // namespace

// An emblem is found, dragged, sized and saved; it is there at the next start, and prints on every envelope.
void Tour::placePicture() {
    check(emblem().save(folder_.file(QStringLiteral("embléma.jpg"))), QStringLiteral("the emblem is drawn"));
    showTab(envelopeTab);
    click("chkKepPrint");
    findPicture();
    auto* size = window_->findChild<QScrollBar*>(QStringLiteral("HScroll1"));
    size->setValue(2500);
    dragPicture({92, 10});
    dragPicture({0, 90});
    shoot(QStringLiteral("09-kep-lelog"));
    check(!window_->tabs().envelope.lbFigyelem.isEmpty(), QStringLiteral("a picture beyond the edge is told"));
    dragPicture({0, -90});
    click("cmdKepMentese");
    shoot(QStringLiteral("09-kep-elhelyezve"));
    const EnvelopeTab placed = window_->tabs().envelope;
    reopen();
    showTab(envelopeTab);
    if (!window_->tabs().envelope.chkKepPrint) click("chkKepPrint");
    check(window_->tabs().envelope.lbXpoz == placed.lbXpoz && window_->tabs().envelope.kepSzeles == placed.kepSzeles,
          QStringLiteral("the picture is back at the next start"));
    clickRow(3);
    printWithPicture("cmdPrint", QStringLiteral("boritek-kep-egyes"), 1);
    printWithPicture("cmdCsPrint", QStringLiteral("boritek-kep-csoportos"), 6);
    click("chkKepPrint");
}

void Tour::findPicture() {
    inDialog([this] { click("cmdKepek"); },
             [this](QDialog& browser) {
                 auto* files = browser.findChild<QListView*>(QStringLiteral("File1"));
                 for (int row = 0; row < files->model()->rowCount(); ++row)
                     if (files->model()->index(row, 0).data().toString() == QStringLiteral("embléma.jpg"))
                         files->setCurrentIndex(files->model()->index(row, 0));
                 QTest::qWait(30);
                 shootDialog(browser, QStringLiteral("09-kep-kereses"));
                 auto* take = browser.findChild<QPushButton*>(QStringLiteral("Command2"));
                 check(take->isEnabled(), QStringLiteral("the emblem is a picture"));
                 take->click();
             });
    check(!window_->tabs().envelope.picture.isNull(), QStringLiteral("the emblem is on the envelope"));
}

void Tour::dragPicture(QPointF mm) {
    auto* picture = window_->findChild<QWidget*>(QStringLiteral("Image3"));
    const auto* page = static_cast<StationeryPage*>(picture->parentWidget());
    const double scale = 1 / (page->mmAt({1, 0}) - page->mmAt({0, 0})).x();
    const QPoint from = picture->rect().center();
    const QPoint before = picture->pos();
    const QPoint by = (mm * scale).toPoint();
    QTest::mousePress(picture, Qt::LeftButton, {}, from);
    QTest::mouseMove(picture, from + by);
    QTest::mouseRelease(picture, Qt::LeftButton, {}, from);
    const QPoint moved = picture->pos() - before - by;
    check(moved.manhattanLength() <= 2, QStringLiteral("the picture follows the mouse"));
}

// All three envelopes in both feeds.
void Tour::printWithPicture(const char* button, const QString& name, int pages) {
    for (const char* type : {"OpB1", "OpB2", "OpB3"})
        for (const char* feed : {"OpOrientacioAllo", "OpOrientacioFekvo"}) {
            click(type);
            click(feed);
            if (pages > 1) selectBatch(pages);
            const QString form = name + u'-' + QLatin1String(type) + u'-' + QLatin1String(feed).mid(12);
            print(button, form, pages);
            const EnvelopeTab& tab = window_->tabs().envelope;
            const QRectF place = placeOf(printing_.job, static_cast<std::size_t>(pages) - 1);
            const double width = static_cast<double>(tab.kepSzeles.tenThousandths()) / 1000;
            check(std::abs(place.width() - width) < 0.01,
                  form + QStringLiteral(" prints the picture as wide as it is"));
        }
    click("OpB1");
}
