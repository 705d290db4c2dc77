#pragma once

#include "mainwindow/bound_view.h"
#include "mainwindow/stationery_page.h"

// The common half of the tabs that show a form: bound widgets on the picture of the stationery, one row of a table
// each. A row begins with the group that it belongs to, and ends with what an edit does:
//
//     front.text(tab.RtxtSzoveg21, "RtxtSzoveg21", {67.6, 43.8, 68.4, 4.2}, "Összeg betűvel").runs(tab, copyWords);
class FormView : public BoundView {
    Q_OBJECT
public:
    FormView(const FormContext& context, QSizeF sizeMm, QWidget* parent = nullptr);

    StationeryPage* page() const { return page_; }

protected:
    class Rows;

    // A control on the picture, as its row goes on with it.
    class Row {
    public:
        // The rule that an edit runs; see BoundView::onEdit.
        template<class Tab, class... Needs>
        const Row& runs(Tab& tab, void (*rule)(Tab&, Needs...)) const {
            view_.onEdit(widget_, tab, rule);
            return *this;
        }
        const Row& then(std::function<void()> step) const;
        // Where it lies while this group is on view.
        const Row& at(const Rows& group, QRectF mm) const;
        // What an empty text box is for.
        const Row& hint(const char* text) const;
        // A text box or combo that holds an amount: shows by its colour and tooltip that its words can't agree with it.
        const Row& asAmount() const;
        QWidget* widget() const { return widget_; }

    private:
        friend Rows;
        Row(FormView& view, QWidget* widget, QRectF mm, double letterMm)
            : view_(view)
            , widget_(widget)
            , mm_(mm)
            , letterMm_(letterMm) {}
        FormView& view_;
        QWidget* widget_;
        QRectF mm_;
        double letterMm_;
    };

    // Makes the rows of a group: controls that are on view together, or always. Places are on the picture, in mm; the
    // name becomes the objectName.
    class Rows {
    public:
        Row text(QString& value, const char* name, QRectF mm, const char* tooltip = "") const;
        Row combo(QString& value, const QStringList& entries, const char* name, QRectF mm,
                  const char* tooltip = "") const;
        // A box that shows once more what another one takes: it can be read and copied, not typed into.
        Row mirror(const QString& value, const char* name, QRectF mm, const char* tooltip = "") const;
        // A text that the program alone writes.
        Row label(const QString& value, const char* name, QRectF mm) const;
        // A small tick on the picture; only a screen reader needs a name where the tooltip isn't one.
        Row tick(bool& value, const char* name, QRectF mm, const char* tooltip, const char* accessibleName) const;
        // An "X" on the picture while the tick of the same value is set.
        Row mark(const bool& value, const char* name, QRectF mm) const;
        // Controls of the screen alone, on blank spots of the picture.
        Row check(bool& value, const char* name, QRectF mm, const char* caption, const char* tooltip) const;
        template<class T>
        Row option(T& value, T choice, const char* name, QRectF mm, const char* caption,
                   const char* tooltip = "") const {
            return option(
                name, mm, caption, tooltip, [&value, choice] { return value == choice; },
                [&value, choice] { value = choice; });
        }
        Row button(const char* name, QRectF mm, std::function<QString()> caption) const;
        // Any other widget.
        Row put(QWidget* widget, QRectF mm) const;

        bool shown() const { return !shown_ || shown_(); }

    private:
        friend FormView;
        Rows(FormView& view, std::function<bool()> shown) : view_(view), shown_(std::move(shown)) {}
        Row option(const char* name, QRectF mm, const char* caption, const char* tooltip, std::function<bool()> isThis,
                   std::function<void()> choose) const;
        Row put(QWidget* widget, QRectF mm, double letterMm) const;

        FormView& view_;
        std::function<bool()> shown_;
    };
    // A group; without a condition its rows are always on view.
    Rows rows(std::function<bool()> shown = {}) { return {*this, std::move(shown)}; }

private:
    StationeryPage* page_;
};
