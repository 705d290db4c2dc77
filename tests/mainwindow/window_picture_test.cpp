#include "mainwindow/stationery_page.h"
#include "window_fixture.h"

#include "settings/envelope_label_settings.h"
#include "settings/other_settings.h"

#include <QListView>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

namespace {

class WindowPicture : public WindowTest {
protected:
    QString path = files.folder().file(u"embléma.bmp"_s);

    void SetUp() override {
        QLocale::setDefault(QLocale::Hungarian);
        files.store(boritek::firstRun());
        QImage image(320, 160, QImage::Format_RGB32);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(path));
        openEnvelope();
    }
    void openEnvelope() {
        open();
        goTo(3);
        if (!ticked("chkKepPrint")) press("chkKepPrint");
        QCoreApplication::processEvents();
    }
    // The browser comes up on the program folder; `answer` ends it.
    void browse(const char* answer) {
        inNextDialog([answer](const QWidget& browser) {
            auto& list = *browser.findChild<QListView*>(u"File1"_s);
            list.setCurrentIndex(list.model()->index(0, 0));
            QTest::qWait(0);
            browser.findChild<QAbstractButton*>(QLatin1String(answer))->click();
        });
        press("cmdKepek");
    }
    // Pixels of the drawn envelope to a mm.
    double pixelsPerMm() const {
        const auto& page = find<StationeryPage>("Frame3");
        return 1 / (page.mmAt({1, 0}) - page.mmAt({0, 0})).x();
    }
    void drag(QPoint by) const {
        auto& picture = find("Image3");
        const QPoint from(picture.width() / 2, picture.height() - 3);
        QTest::mousePress(&picture, Qt::RightButton, {}, from);
        QTest::mouseMove(&picture, from + by / 2);
        QTest::mouseMove(&picture, from + by - by / 2); // it has moved by the first half
        QTest::mouseRelease(&picture, Qt::RightButton, {}, from);
    }
    std::string labels() const {
        return text("lbXpoz") + ' ' + text("lbYpoz") + ' ' + text("lbSzeles") + ' ' + text("lbMagas");
    }
};

TEST_F(WindowPicture, IsFoundDraggedSizedSavedAndPrinted) {
    EXPECT_EQ(labels(), "   ");
    browse("Command3");
    EXPECT_EQ(window->tabs().envelope.kepFajl, QString());
    browse("Command2");
    EXPECT_EQ(window->tabs().envelope.kepFajl, QDir::toNativeSeparators(path));
    EXPECT_EQ(labels(), "  3,5 cm 1,7 cm");
    auto& bar = find<QScrollBar>("HScroll1");
    EXPECT_EQ(bar.maximum(), 8465);
    QTest::keyClick(&bar, Qt::Key_PageUp);
    EXPECT_EQ(bar.value(), 1900);
    bar.setValue(3258);
    EXPECT_EQ(labels(), "  6,0 cm 3,0 cm");
    const double scale = pixelsPerMm();
    EXPECT_NEAR(find("Image3").width(), 60 * scale, 1); // as large as it prints
    drag((QPointF(30, 40) * scale).toPoint());
    EXPECT_EQ(labels(), "30 40 6,0 cm 3,0 cm");
    QTest::keyClick(&find("Image3"), Qt::Key_Left);
    QTest::keyClick(&find("Image3"), Qt::Key_Down);
    EXPECT_EQ(labels(), "29 41 6,0 cm 3,0 cm");
    press("cmdKepMentese");
    openEnvelope(); // the next start
    EXPECT_EQ(labels(), "29 41 6,0 cm 3,0 cm");
    EXPECT_EQ(find<QScrollBar>("HScroll1").value(), 3258);
    press("chkCimzett");
    press("cmdPrint");
    const auto& item = service.delivered.back().job.pages.at(0).items.at(0);
    const auto& printed = std::get<PlacedPicture>(item);
    EXPECT_EQ(QRectF(QPointF(printed.x, printed.y), QSizeF(printed.width, printed.height)), QRectF(95, 61, 60, 30));
    EXPECT_EQ(status(), "1 oldal kinyomtatva: Elso. ");

    expectShown("Image3 Frame5 HScroll1 cmdKepek cmdKepMentese lbXpoz", true);
    expectShown("lbFigyelem", false);
    drag((QPointF(0, 50) * scale).toPoint());
    EXPECT_EQ(text("lbFigyelem"), "A kép alja lelóg a borítékról!");
    expectShown("lbFigyelem", true);
    press("chkKepPrint");
    expectShown("Image3 Frame5", false);
}

TEST_F(WindowPicture, WhatCannotBeSavedIsTold) {
    const QString bad = files.folder().file(u"Ж.bmp"_s);
    ASSERT_TRUE(QFile::rename(path, bad));
    browse("Command2");
    EXPECT_EQ(labels(), "  3,5 cm 1,7 cm");
    press("cmdKepMentese");
    EXPECT_EQ(joined(prompts.told.at(0)),
              "Figyelem!|A kép útvonala nem menthető, másolja a képet rövidebb nevű mappába!");
    EXPECT_TRUE(readRecord<Kepment>(files).kepFajl.trimmed().isEmpty());
}

} // namespace
