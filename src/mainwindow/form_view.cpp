#include "mainwindow/form_view.h"

#include "controls/entry_combo.h"
#include "controls/named.h"
#include "mainwindow/tab_words.h"
#include "records/number_text.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr double dataMm = 2.75;
constexpr double captionMm = 2.7; // letters of captions, smaller than those of the data

QLineEdit* typedIn(QWidget* box) {
    auto* combo = qobject_cast<QComboBox*>(box);
    return combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(box);
}

} // namespace

FormView::FormView(const FormContext& context, QSizeF sizeMm, QWidget* parent)
    : BoundView(context, parent)
    , page_(new StationeryPage(context.folder, sizeMm)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(page_, 1);
}

const FormView::Row& FormView::Row::then(std::function<void()> step) const {
    view_.afterEdit(widget_, std::move(step));
    return *this;
}

const FormView::Row& FormView::Row::at(const Rows& group, QRectF mm) const {
    view_.onShow([row = *this, group, mm] {
        row.view_.page()->place(row.widget_, group.shown() ? mm : row.mm_, row.letterMm_);
    });
    return *this;
}

const FormView::Row& FormView::Row::hint(const char* text) const {
    typedIn(widget_)->setPlaceholderText(QString::fromUtf8(text));
    return *this;
}

const FormView::Row& FormView::Row::asAmount() const {
    view_.onShow([box = widget_, typed = typedIn(widget_), tooltip = widget_->toolTip()] {
        const bool agrees = isPlainAmount(typed->text());
        PaperStyle::setDoubtful(typed, !agrees);
        box->setToolTip(agrees ? tooltip
                               : QStringLiteral("A számjegyek és a betűs összeg eltér: a betűs összeg %1.")
                                     .arg(amountOf(typed->text())));
    });
    return *this;
}

FormView::Row FormView::Rows::put(QWidget* widget, QRectF mm) const { return put(widget, mm, dataMm); }

FormView::Row FormView::Rows::put(QWidget* widget, QRectF mm, double letterMm) const {
    view_.page()->place(widget, mm, letterMm);
    if (shown_) view_.onShow([widget, shown = shown_] { widget->setVisible(shown()); });
    return {view_, widget, mm, letterMm};
}

FormView::Row FormView::Rows::text(QString& value, const char* name, QRectF mm, const char* tooltip) const {
    return put(view_.bindText(value, name, tooltip), mm);
}

FormView::Row FormView::Rows::combo(QString& value, const QStringList& entries, const char* name, QRectF mm,
                                    const char* tooltip) const {
    return put(view_.bindCombo(value, entries, name, tooltip), mm);
}

FormView::Row FormView::Rows::mirror(const QString& value, const char* name, QRectF mm, const char* tooltip) const {
    auto* box = named(new QLineEdit, name, QString::fromUtf8(tooltip));
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::ClickFocus);
    view_.onShow([&value, box] {
        box->setText(value);
        box->setCursorPosition(0);
    });
    return put(box, mm);
}

FormView::Row FormView::Rows::label(const QString& value, const char* name, QRectF mm) const {
    return put(view_.bindLabel(value, name), mm);
}

FormView::Row FormView::Rows::tick(bool& value, const char* name, QRectF mm, const char* tooltip,
                                   const char* accessibleName) const {
    QAbstractButton* box = view_.bindCheck(value, name, QString(), tooltip);
    box->setAccessibleName(QString::fromUtf8(accessibleName));
    return put(box, mm, captionMm);
}

FormView::Row FormView::Rows::mark(const bool& value, const char* name, QRectF mm) const {
    auto* mark = named(new QLabel(QStringLiteral("X")), name);
    mark->setAlignment(Qt::AlignCenter);
    return view_.rows([group = *this, &value] { return group.shown() && value; }).put(mark, mm);
}

FormView::Row FormView::Rows::check(bool& value, const char* name, QRectF mm, const char* caption,
                                    const char* tooltip) const {
    return put(view_.bindCheck(value, name, QString::fromUtf8(caption), tooltip), mm, captionMm);
}

FormView::Row FormView::Rows::option(const char* name, QRectF mm, const char* caption, const char* tooltip,
                                     std::function<bool()> isThis, std::function<void()> choose) const {
    const QString text = QString::fromUtf8(caption);
    return put(view_.bindOption(name, text, std::move(isThis), std::move(choose), tooltip), mm, captionMm);
}

FormView::Row FormView::Rows::button(const char* name, QRectF mm, std::function<QString()> caption) const {
    QPushButton* box = view_.bindButton(name, QString());
    view_.onShow([box, caption = std::move(caption)] { box->setText(caption()); });
    return put(box, mm, captionMm);
}
