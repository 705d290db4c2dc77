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

} // namespace messages
