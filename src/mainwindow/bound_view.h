#pragma once

#include "printing/print_device.h"
#include "prompts/prompts.h"
#include "records/client_database.h"

#include <QWidget>

#include <functional>
#include <vector>

class EntryCombo;
class QAbstractButton;
class QGroupBox;
class QLabel;
class QLineEdit;

// The client last clicked, as read then; the number is 0 and the record zero while there is none.
struct SelectedClient {
    int rekordszam = 0;
    Client record = {zeroRecord<ClientRec>(), zeroRecord<TwinRec>()};
};

// What the views and their rules reach of the program.
struct FormContext {
    const ProgramFolder& folder;
    PrintDevice& device;
    Prompts& prompts;
    const SelectedClient& selected;
};

// A view whose widgets are each bound to one member of a tab's values. An edit is written into its member and told by
// `edited`; the rule then changes the values, and showValues() brings them to the screen with signals blocked, so a
// rule runs once for each new text. The values must outlive the view. Every widget's objectName is its control's name.
class BoundView : public QWidget {
    Q_OBJECT
public:
    explicit BoundView(const FormContext& context, QWidget* parent = nullptr) : QWidget(parent), context_(context) {}

    void showValues();

Q_SIGNALS:
    // The user (or a test) changed the control of this name; its member already holds the new value.
    void edited(const QString& name);

protected:
    QLineEdit* bindText(QString& value, const char* name, const char* tooltip = "");
    EntryCombo* bindCombo(QString& value, const QStringList& entries, const char* name, const char* tooltip = "");
    QLabel* bindLabel(const QString& value, const char* name, const char* tooltip = "");
    QAbstractButton* bindCheck(bool& value, const char* name, const QString& caption, const char* tooltip = "");
    // An option button of a group; `isThis` and `choose` are its two directions.
    QAbstractButton* bindOption(const char* name, const QString& caption, std::function<bool()> isThis,
                                std::function<void()> choose);
    // Runs whenever the values are shown.
    void onShow(std::function<void()> show);
    // Shows or hides the named widgets of this view.
    void setShown(std::initializer_list<const char*> names, bool shown);

    const FormContext& context() const { return context_; }

    // A named box with a caption around controls.
    static QGroupBox* frame(const char* name, const char* caption);
    static void setName(QWidget* widget, const char* name, const char* tooltip = "");

private:
    FormContext context_;
    std::vector<std::function<void()>> shows_;
};
