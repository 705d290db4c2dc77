#pragma once

#include "prompts/prompts.h"
#include "records/record_file.h"

#include <new>

// An action of the clerk that a file stopped which can't be read, or memory that ran out, ends here: with a message
// instead of a wrong result. What it has begun is undone by its own scopes.

// A file that could not be read behind an action that is done.
class UnreadableAfterwards : public UnreadableFile {
public:
    using UnreadableFile::UnreadableFile;
};

// Shows what an action has changed; that it can't must not be told as a failure of the action.
template<class Show>
void afterwards(Show&& show) {
    try {
        show();
    } catch (const UnreadableFile& file) {
        throw UnreadableAfterwards(file.name());
    }
}

// What stopped the action, in words; empty if it went through.
template<class Action>
QString troubleOf(Action&& action) {
    try {
        action();
    } catch (const UnreadableAfterwards& file) {
        return QStringLiteral("A művelet megtörtént, de a lista nem frissült: a(z) %1 fájl nem olvasható.")
            .arg(file.name());
    } catch (const UnreadableFile& file) {
        return QStringLiteral("A(z) %1 fájl nem olvasható, a művelet nem indult el.").arg(file.name());
    } catch (const std::bad_alloc&) {
        return QStringLiteral("Kevés a memória, a művelet nem fejeződött be.");
    }
    return {};
}

// False: a file stopped it, and nobody has been told.
template<class Action>
bool readable(Action&& action) {
    try {
        action();
    } catch (const UnreadableFile&) {
        return false;
    }
    return true;
}

// False: it was stopped, and the clerk has been told.
template<class Action>
bool guarded(Prompts& prompts, Action&& action) {
    const QString trouble = troubleOf(action);
    if (!trouble.isEmpty()) prompts.tell({Icon::critical, QStringLiteral("Hiba"), trouble});
    return trouble.isEmpty();
}
