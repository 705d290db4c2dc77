#pragma once

#include "prompts/prompts.h"

#include <deque>
#include <vector>

// Answers from queues and records everything shown. A question that no answer was queued for fails the test instead of
// hanging it. Messages need no answer.
class ScriptedPrompts : public Prompts {
public:
    ScriptedPrompts() = default;
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;
    ~ScriptedPrompts() override;

    std::deque<Answer> answers;
    std::deque<QString> files; // for openFile and saveFile
    std::deque<std::optional<PrinterChoice>> printerChoices;

    std::vector<Message> told;
    std::vector<Message> asked;
    std::vector<Answer> presets; // default button of each question
    std::vector<QString> fileTitles;
    std::vector<QString> summaries; // of the print dialogs
    int printDialogs = 0;

    void tell(const Message& message) override;
    Answer ask(const Message& message, Answer preset) override;
    QString openFile(const QString& title, const QString& filter) override;
    QString saveFile(const QString& title, const QString& filter) override;
    std::optional<PrinterChoice> choosePrinter(const QStringList& printers, int current,
                                               const QString& summary) override;
};
