#pragma once

#include "prompts/prompts.h"
#include "prompts/titles.h"

// Boxes that more than one place shows.
namespace messages {

inline Message nobodyPicked() {
    return {Icon::information, titles::attention, QStringLiteral(" Nincs kijelölve ügyfél a listáról...")};
}

inline Message notWritten() {
    return {Icon::critical, titles::error, QStringLiteral("Az adatbázis nem írható, a korábbi állapot maradt meg.")};
}

inline Message settingNotWritten() {
    return {Icon::critical, titles::error,
            QStringLiteral("A beállítás nem menthető, a program mappája vagy a fájl nem írható!")};
}

} // namespace messages
