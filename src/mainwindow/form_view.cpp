#include "mainwindow/form_view.h"

#include "controls/entry_combo.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
constexpr double captionMm = 2.7; // letters of captions, smaller than those of the data
}

FormView::FormView(const FormContext& context, QSizeF sizeMm, QWidget* parent)
    : BoundView(context, parent)
    , page_(new StationeryPage(context.folder, sizeMm)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(page_, 1);
}

QLineEdit* FormView::addText(const TextRow& row) {
    QLineEdit* box = bindText(row.value, row.name, row.tooltip);
    page_->place(box, row.mm);
    return box;
}

void FormView::addTexts(std::initializer_list<TextRow> rows) {
    for (const TextRow& row : rows)
        addText(row);
}

EntryCombo* FormView::addCombo(const TextRow& row, const QStringList& entries) {
    EntryCombo* box = bindCombo(row.value, entries, row.name, row.tooltip);
    box->lieOnPaper();
    page_->place(box, row.mm);
    return box;
}

void FormView::addLabels(std::initializer_list<TextRow> rows) {
    for (const TextRow& row : rows)
        page_->place(bindLabel(row.value, row.name, row.tooltip), row.mm);
}

void FormView::addChecks(std::initializer_list<CheckRow> rows) {
    for (const CheckRow& row : rows)
        addCheck(row, QString())->setAccessibleName(QString::fromUtf8(row.accessibleName));
}

QAbstractButton* FormView::addCheck(const CheckRow& row, const QString& caption) {
    QAbstractButton* box = bindCheck(row.value, row.name, caption, row.tooltip);
    page_->place(box, row.mm, captionMm);
    return box;
}

void FormView::addMark(const bool& value, const char* objectName, QRectF mm) {
    auto* mark = new QLabel(QStringLiteral("X"));
    setName(mark, objectName);
    mark->setAlignment(Qt::AlignCenter);
    onShow([&value, mark] { mark->setVisible(value); });
    page_->place(mark, mm);
}

void FormView::addOption(const char* objectName, QRectF mm, const char* tooltip, const char* caption,
                         std::function<bool()> isThis, std::function<void()> choose) {
    QAbstractButton* option = bindOption(objectName, QString::fromUtf8(caption), std::move(isThis), std::move(choose));
    setName(option, objectName, tooltip);
    page_->place(option, mm, captionMm);
}

void FormView::addButton(const char* objectName, QRectF mm, std::function<QString()> caption,
                         std::function<void()> press) {
    auto* button = new QPushButton;
    setName(button, objectName);
    connect(button, &QPushButton::clicked, this, [this, press = std::move(press)] {
        press();
        showValues();
    });
    onShow([button, caption = std::move(caption)] { button->setText(caption()); });
    page_->place(button, mm, captionMm);
}
