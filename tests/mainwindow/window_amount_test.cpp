#include "mainwindow/bound_view.h"
#include "window_fixture.h"

#include <QSignalSpy>
#include <QWheelEvent>

namespace {

struct AmountBox {
    int tab;
    const char *box, *upper, *lower;
    std::vector<const char*> digits; // copies of the amount
    const char *upperCopy, *lowerCopy;
};

const AmountBox amountBoxes[] = {
    {0, "txOsszeg", "txtSzoveg21", "txtSzoveg11", {"lbOsszeg"}, "txtSzoveg22", "txtSzoveg12"},
    {6, "RtxOsszeg", "RtxtSzoveg21", "RtxtSzoveg11", {"RlbOsszeg", "lbOsszeg2"}, "RtxtSzoveg12", "RtxtSzoveg22"}};

// Each test runs on the boxes of both checks, with the first client clicked.
class WindowAmount : public WindowTest, public testing::WithParamInterface<AmountBox> {
protected:
    const AmountBox& amount = GetParam();

    void SetUp() override {
        auto client = clientNamed(QStringLiteral("Kiss Anna"), 1500);
        client.Osszegek[1] = 9999999; // never offered
        client.Osszegek[11] = 700;
        auto unusable = clientNamed(QStringLiteral("Nagy Béla"), 0);
        unusable.Osszegek[1] = 2500;
        openWith({client, unusable});
        goTo(amount.tab);
        clickRow(0);
    }
    QComboBox& box() const { return find<QComboBox>(amount.box); }
    std::string offered() const {
        std::string entries;
        for (int i = 0; i < box().count(); ++i)
            entries += box().itemText(i).toStdString() + ' ';
        return entries;
    }
    void expectAmount(const std::string& digits, const std::string& upper, const std::string& lower = "") const {
        EXPECT_EQ(text(amount.box), digits);
        for (const char* copy : amount.digits)
            EXPECT_EQ(text(copy), digits) << copy;
        EXPECT_EQ(text(amount.upper) + '|' + text(amount.lower), upper + '|' + lower);
        EXPECT_EQ(text(amount.upperCopy) + '|' + text(amount.lowerCopy), upper + '|' + lower);
    }
};

TEST_P(WindowAmount, EachKeystrokeIsWordedOnce) {
    auto& view = *find<QTabWidget>("SSTab1").currentWidget()->findChild<BoundView*>();
    const QSignalSpy edits(&view, &BoundView::edited);
    box().lineEdit()->selectAll();
    const std::tuple<char, const char*, const char*> keys[] = {{'1', "1", "Egy"},
                                                               {'5', "15", "Tizenöt"},
                                                               {'0', "150", "Egyszázötven"},
                                                               {'0', "1500", "Egyezer-ötszáz"},
                                                               {'x', "1500x", "Egyezer-ötszáz"}};
    for (qsizetype times = 0; const auto& [key, digits, words] : keys) {
        QTest::keyClick(box().lineEdit(), key);
        expectAmount(digits, words);
        EXPECT_EQ(edits.size(), ++times) << digits;
    }
}

TEST_P(WindowAmount, TheListTouchesWhatWasTypedByAChosenEntryAlone) {
    EXPECT_EQ(offered(), "1500 700 ");
    type(amount.box, QStringLiteral("15")); // no completion to 1500
    QTest::keyClick(box().lineEdit(), Qt::Key_Return);
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box(), &wheel);
    expectAmount("15", "Tizenöt");
    EXPECT_EQ(offered(), "1500 700 ");
    for (const auto& [digits, words] : {std::pair("1500", "Egyezer-ötszáz"), std::pair("700", "Hétszáz")}) {
        QTest::keyClick(&box(), Qt::Key_Down);
        expectAmount(digits, words);
    }
    clickRow(1); // another list, of which nothing becomes the text
    expectAmount("", "");
    EXPECT_EQ(offered(), "2500 ");
}

TEST_P(WindowAmount, NextKeystrokeTakesTheStoredFont) {
    type(amount.box, QStringLiteral("1234567"));
    expectAmount("1234567", "Egymilliókettőszázharmincnégyezer-", "ötszázhatvanhét");
    updateRecord<Set>(files, [](Set& set) { set.TextBetuMeret2 = 5; });
    updateRecord<SetRcsekk>(files, [](SetRcsekk& set) { set.TextRcsekkBetuMeret2 = 5; });
    type(amount.box, QStringLiteral("1234567"));
    expectAmount("1234567", "Egymilliókettőszázharmincnégyezer-ötszázhatvanhét");
}

INSTANTIATE_TEST_SUITE_P(Checks, WindowAmount, testing::ValuesIn(amountBoxes),
                         [](const auto& check) { return std::string(check.param.box); });

} // namespace
