#include "settings/envelope_label_settings.h"
#include "window_fixture.h"

#include <QHelpEvent>

namespace {

class WindowLabels : public WindowTest {
protected:
    void SetUp() override {
        ClientRec second = clientNamed(QStringLiteral("Nagy & Fiai"));
        second.Nev2.set(u"raktár");
        openWith({clientNamed(QStringLiteral("Kiss Anna")), second});
        goTo(4); // fixes a sheet of 2 x 6
    }
    // The tooltip that the mouse finds on a place.
    std::string tip(const char* place) const {
        QHelpEvent event(QEvent::ToolTip, {}, {});
        QCoreApplication::sendEvent(&find(place), &event);
        return find(place).toolTip().toStdString();
    }
    // What a press prints, of the texts that `part` is in, with their places; or the status line.
    std::string printed(const char* part) {
        prompts.answers = {Answer::no}; // the device in force is good enough
        service.delivered.clear();
        press("cmdPrint");
        prompts.answers.clear();
        if (service.delivered.empty()) return status();
        const QStringList all = placedTexts(service.delivered.back().job.pages.at(0));
        QStringList texts;
        for (const QString& text : all.filter(QString::fromUtf8(part)))
            texts << text.section(u' ', 0, 1) + u' ' + text.section(u'|', 1).trimmed();
        return texts.join(u'|').toStdString();
    }
    std::string preview() const {
        return text("lbNev1") + '|' + text("lbNev2") + '|' + text("lbHelyseg") + '|' + text("lbCim") + '|' +
               text("lbIrsz");
    }
};

TEST_F(WindowLabels, AClickGivesThePlaceTheClientOfTheList) {
    press("chkCimke1_1");
    EXPECT_EQ(told(), "Figyelem...|Nincs kijelölve név a listamezőben!"); // the tick goes without a second message
    EXPECT_FALSE(ticked("chkCimke1_1"));
    EXPECT_EQ(window->focusWidget(), &list());

    clickRow(1);
    press("chkCimke1_1");
    press("chkCimke1_4");
    clickRow(0);
    press("chkCimke1_2");
    press("chkCimke1_4"); // and off again
    EXPECT_EQ(text("chkCimke1_1") + '|' + text("chkCimke1_2") + '|' + text("chkCimke1_4"), "Nagy && Fiai|Kiss Anna|4");
    EXPECT_EQ(tip("chkCimke1_1"), "Nagy & Fiai - raktár - Budapest - Fő utca 1. - 1024  ");
    EXPECT_EQ(tip("chkCimke1_4"), "");
    files.store(clientNamed(QStringLiteral("Új Név")), 1);
    press("cmdBeolvas");
    EXPECT_EQ(tip("chkCimke1_2").substr(0, 8), "Új Név");
    EXPECT_EQ(printed(" 5.00 12 "), "5.00 5.00 Nagy & Fiai|110.00 5.00 Új Név");
    EXPECT_TRUE(ticked("chkCimke1_1")); // for the next sheet
    press("cmdCimkeMeretRogzites");
    EXPECT_FALSE(ticked("chkCimke1_1"));
    EXPECT_EQ(tip("chkCimke1_1"), "");
}

TEST_F(WindowLabels, ACustomLabelPrintsTheTypedLines) {
    clickRow(0);
    EXPECT_EQ(preview().substr(0, 9), "Kiss Anna");
    press("chkCimke1_3");
    press("chkEgyediCimke");
    EXPECT_EQ(preview(), "||||"); // no line of the former client is left
    for (const char* line : {"txEgyediCimke_0", "txEgyediCimke_4"})
        type(line, QString::fromLatin1(line).right(1));
    EXPECT_EQ(preview(), "0||||4");
    press("chkCimke1_12");
    press("chkCimke1_3");                                       // off; its client keeps the place
    EXPECT_EQ(printed("|"), "110.00 252.50 0|110.00 271.70 4"); // with room for the three empty lines
    press("chkEgyediCimke");
    EXPECT_EQ(preview(), "||||");
    EXPECT_EQ(text("chkCimke1_3"), "Kiss Anna");
    EXPECT_EQ(printed("|"), "Nem készült nyomat. A kipipált cimkékhez nem tartozik ügyfél.");
    press("chkCimke1_12");
    EXPECT_EQ(printed(" 5.00 12 "), "5.00 5.00 Kiss Anna"); // the list: a client without a tick has no place
}

TEST_F(WindowLabels, ABoxThatIsNoNumberTakesTheFocus) {
    const QByteArray stored = files.bytes(QString::fromLatin1(CimkeSetup::fileName));
    for (const char* box : {"txtOszlop", "txtTop"}) {
        const QString former = QString::fromStdString(text(box));
        type(box, QStringLiteral("x1"));
        press("cmdCimkeMeretRogzites");
        EXPECT_EQ(joined(prompts.told.back()), "Hiba|Hibás szám: ''x1''\nIde csak szám írható!");
        EXPECT_EQ(window->focusWidget(), &find(box));
        type(box, former);
    }
    EXPECT_EQ(files.bytes(QString::fromLatin1(CimkeSetup::fileName)), stored);
}

} // namespace
