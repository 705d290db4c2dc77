#include "controls/dialog.h"
#include "controls/entry_combo.h"
#include "controls/named.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTextDocument>
#include <QVBoxLayout>
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

TEST(Dialog, EnterPressesOnlyADefaultButtonAndEscapeLeaves) {
    for (const bool hasDefault : {false, true}) {
        Dialog dialog("frmProba", u"Próba"_s, nullptr);
        auto* layout = new QVBoxLayout(&dialog);
        auto* box = new QLineEdit;
        auto* button = new QPushButton(u"Mentés"_s);
        int pressed = 0;
        QObject::connect(button, &QPushButton::clicked, [&pressed] { ++pressed; });
        button->setDefault(hasDefault);
        layout->addWidget(box);
        layout->addWidget(button);
        dialog.show();
        box->setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QCoreApplication::sendEvent(box, &press);
        }
        EXPECT_EQ(pressed, hasDefault ? 2 : 0);
        EXPECT_FALSE(dialog.isVisible());
    }
}

TEST(Dialog, OpensInTheMiddleOfTheScreenAndNeverLarger) {
    for (const int side : {200, 5000}) {
        Dialog dialog("frmProba", u"Próba"_s, nullptr);
        auto* content = new QScrollArea;
        content->setSizeAdjustPolicy(QScrollArea::AdjustToContents);
        (new QVBoxLayout(&dialog))->addWidget(content);
        auto* inner = new QWidget;
        inner->setMinimumSize(side, side);
        content->setWidget(inner);
        dialog.show();
        const QRect room = dialog.screen()->availableGeometry();
        EXPECT_TRUE(room.contains(dialog.geometry())) << side;
        EXPECT_LT(std::abs(dialog.geometry().center().x() - room.center().x()), 2) << side;
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
