#include "support/scripted_prompts.h"

#include <gtest/gtest.h>

namespace {

template<class Value>
Value take(std::deque<Value>& queue, const QString& what, Value otherwise) {
    if (queue.empty()) {
        ADD_FAILURE() << "unscripted prompt: " << what.toStdString();
        return otherwise;
    }
    Value value = queue.front();
    queue.pop_front();
    return value;
}

} // namespace

ScriptedPrompts::~ScriptedPrompts() {
    EXPECT_TRUE(answers.empty() && files.empty() && printerChoices.empty()) << "prompts that were scripted never came";
}

void ScriptedPrompts::tell(const Message& message) { told.push_back(message); }

Answer ScriptedPrompts::ask(const Message& message, Answer preset) {
    asked.push_back(message);
    presets.push_back(preset);
    return take(answers, message.text, Answer::no);
}

QString ScriptedPrompts::openFile(const QString& title, const QString&) {
    fileTitles.push_back(title);
    return take(files, title, QString());
}

QString ScriptedPrompts::saveFile(const QString& title, const QString&) {
    fileTitles.push_back(title);
    return take(files, title, QString());
}

std::optional<PrinterChoice> ScriptedPrompts::choosePrinter(const QStringList&, int, const QString& summary) {
    summaries.push_back(summary);
    ++printDialogs;
    return take(printerChoices, QStringLiteral("print dialog"), std::optional<PrinterChoice>());
}
