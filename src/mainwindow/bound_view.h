#pragma once

#include "mainwindow/form_context.h"

#include <QWidget>

#include <functional>
#include <unordered_map>
#include <vector>

class EntryCombo;
class QAbstractButton;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

// A view whose widgets are each bound to one member of a tab's values. An edit is written into its member, then the
// control's rule changes the values, and showValues() brings them to the screen with signals blocked, so a rule runs
// once for each new text. The values must outlive the view. Every widget's objectName is its control's name. ENTER goes
// on to the next text box.
class BoundView : public QWidget {
    Q_OBJECT
public:
    explicit BoundView(const FormContext& context, QWidget* parent = nullptr) : QWidget(parent), context_(context) {}

    void showValues();

Q_SIGNALS:
    // The user (or a test) changed a control or pressed a button: its rule has run and the values are shown.
    void edited();

protected:
    const FormContext& context() const { return context_; }

    QLineEdit* bindText(QString& value, const char* name, const char* tooltip = "");
    EntryCombo* bindCombo(QString& value, const QStringList& entries, const char* name, const char* tooltip = "");
    QLabel* bindLabel(const QString& value, const char* name, const char* tooltip = "");
    QAbstractButton* bindCheck(bool& value, const char* name, const QString& caption, const char* tooltip = "");
    // An option button of a group; `isThis` and `choose` are its two directions.
    QAbstractButton* bindOption(const char* name, const QString& caption, std::function<bool()> isThis,
                                std::function<void()> choose, const char* tooltip = "");
    // A horizontal bar; its maximum may change with the values.
    QScrollBar* bindScroll(int& value, int minimum, const int& maximum, const char* name, const char* tooltip = "");
    QPushButton* bindButton(const char* name, const QString& caption);

    // The rule that an edit of the control runs. Its parameters behind the tab say what it needs; see supply().
    template<class Tab, class... Needs>
    void onEdit(const QWidget* control, Tab& tab, void (*rule)(Tab&, Needs...)) {
        edits_[control].rule = [this, &tab, rule] {
            [[maybe_unused]] const FormContext& reach = context_; // of a rule that needs nothing more
            rule(tab, supply<std::remove_cvref_t<Needs>>(reach)...);
        };
    }
    // The same for one of an array of controls.
    template<class Tab, class... Needs>
    void onEdit(const QWidget* control, Tab& tab, std::size_t index, void (*rule)(Tab&, std::size_t, Needs...)) {
        edits_[control].rule = [this, &tab, index, rule] {
            rule(tab, index, supply<std::remove_cvref_t<Needs>>(context_)...);
        };
    }
    // What the view itself does once the values are shown again: it moves the focus, or tells the window.
    void afterEdit(const QWidget* control, std::function<void()> step) { edits_[control].step = std::move(step); }
    // Runs whenever the values are shown.
    void onShow(std::function<void()> show);

    // A named box with a caption around controls.
    static QGroupBox* frame(const char* name, const char* caption);

private:
    struct Edit {
        std::function<void()> rule = [] {};
        std::function<void()> step = [] {};
    };
    void carryOut(const QWidget* control);
    // `typing` is the inner box of a combo, or the box itself.
    void takesTyping(QWidget* box, const QLineEdit* typing);
    void goOn(const QWidget* box);

    FormContext context_;
    std::unordered_map<const QWidget*, Edit> edits_;
    std::vector<std::function<void()>> shows_;
    std::vector<QWidget*> boxes_; // that take typing, in the order of the form
};
