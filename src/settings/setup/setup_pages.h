#pragma once

#include "settings/setup/page_builder.h"

// The pages of the setup dialog, filled from their records. Each stores and restores its own fields only.
QWidget* yellowCheckPage(const SetupContext& context);
QWidget* pinkCheckPage(const SetupContext& context);

// Questions that several pages ask.
inline constexpr Question changeQuestion{u" Módosítás ", u"Biztos módosítod a beállításokat?"};
