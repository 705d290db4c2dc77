#pragma once

#include "prompts/prompts.h"

#include <QPointer>
#include <QWidget>

class QFileDialog;

// The prompts as modal boxes and dialogs of the toolkit, in front of a window. All words on them are set here: the
// toolkit's Hungarian translation may not be installed.
class QtPrompts : public Prompts {
public:
    // Without a parent, or once it is gone, a box stands in front of the active window.
    explicit QtPrompts(QWidget* parent = nullptr);

    void tell(const Message& message) override;
    Answer ask(const Message& message, Answer preset) override;
    QString openFile(const QString& title, const QString& filter) override;
    QString saveFile(const QString& title, const QString& filter) override;
    std::optional<PrinterChoice> choosePrinter(const QStringList& printers, int current,
                                               const QString& summary) override;

private:
    QWidget* window() const;

    QPointer<QWidget> parent_;
};
