#pragma once

#include "prompts/prompts.h"

#include <memory>

class QFileDialog;
class QFileIconProvider;

// The prompts as modal boxes and dialogs of the toolkit, in front of the active window. All words on them are set here:
// the toolkit's Hungarian translation may not be installed.
class QtPrompts : public Prompts {
public:
    // File dialogs open in `folder` first, then where the user was last.
    explicit QtPrompts(const QString& folder = {});
    QtPrompts(const QtPrompts&) = delete;
    QtPrompts& operator=(const QtPrompts&) = delete;
    ~QtPrompts() override;

    void tell(const Message& message) override;
    Answer ask(const Message& message, Answer preset) override;
    QString openFile(const QString& title, const QString& filter) override;
    QString saveFile(const QString& title, const QString& filter) override;
    std::optional<PrinterChoice> choosePrinter(const QStringList& printers, int current,
                                               const QString& summary) override;

private:
    QString run(QFileDialog& dialog);

    QString folder_;
    std::unique_ptr<QFileIconProvider> icons_; // outlives the dialogs, which read folders in a thread of their own
};
