#include "controls/entry_combo.h"
#include "controls/named.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QTextDocument>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(Named, ATooltipShowsItsTextAsItWasWritten) {
    for (const QString& text : {u"''Delete\" & ''Insert\""_s, u"5 < 6"_s, u"A<b>B\nC"_s, u"&lt;"_s}) {
        QLineEdit box;
        EXPECT_EQ(named(&box, "txNev", text)->objectName(), u"txNev"_s);
        const QString tip = box.toolTip();
        QTextDocument shown;
        shown.setHtml(tip);
        EXPECT_EQ(Qt::mightBeRichText(tip) ? shown.toPlainText() : tip, text) << text.toStdString();
    }
}

TEST(EntryCombo, KeepsItsTextWhateverTheListAndTheWheelDo) {
    EntryCombo box;
    box.setEditText(u"Egyedi"_s);
    box.offer({u"Arial"_s, u"Courier"_s});
    QWheelEvent wheel({5, 5}, {5, 5}, {0, 0}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.currentText(), u"Egyedi"_s);
    EXPECT_FALSE(wheel.isAccepted());
}
