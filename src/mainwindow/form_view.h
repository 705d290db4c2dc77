#pragma once

#include "mainwindow/bound_view.h"
#include "mainwindow/stationery_page.h"

class QPushButton;

// The common half of the tabs that show a form: bound widgets on the picture of the stationery.
class FormView : public BoundView {
    Q_OBJECT
public:
    FormView(const FormContext& context, QSizeF sizeMm, QWidget* parent = nullptr);

    StationeryPage* page() const { return page_; }

protected:
    // Places on the picture; mm. The name becomes the objectName.
    struct TextRow {
        QString& value;
        const char* name;
        QRectF mm;
        const char* tooltip = "";
    };
    struct CheckRow {
        bool& value;
        const char* name;
        QRectF mm;
        const char* tooltip = "";
        const char* accessibleName = "";
    };
    void addTexts(std::initializer_list<TextRow> rows);
    // Texts that the program alone writes.
    void addLabels(std::initializer_list<TextRow> rows);
    // Small ticks on the picture.
    void addChecks(std::initializer_list<CheckRow> rows);
    // An "X" on the picture while the tick of the same value is set.
    void addMark(const bool& value, const char* name, QRectF mm);

    QLineEdit* addText(const TextRow& row);
    EntryCombo* addCombo(const TextRow& row, const QStringList& entries);

    // Controls of the screen alone, on blank spots of the picture.
    QAbstractButton* addCheck(const CheckRow& row, const QString& caption);
    void addOption(const char* name, QRectF mm, const char* tooltip, const char* caption, std::function<bool()> isThis,
                   std::function<void()> choose);
    void addButton(const char* name, QRectF mm, std::function<QString()> caption, std::function<void()> press);

private:
    StationeryPage* page_;
};
