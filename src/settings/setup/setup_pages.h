#pragma once

#include "settings/setup/page_builder.h"

// The pages of the setup dialog, filled from their records. Each stores and restores its own fields only.
SetupPage* yellowCheckPage(const SetupContext& context);
SetupPage* returnReceiptPage(const SetupContext& context);
SetupPage* postingReceiptPage(const SetupContext& context);
SetupPage* envelopePage(const SetupContext& context);
SetupPage* documentReceiptPage(const SetupContext& context);
SetupPage* pinkCheckPage(const SetupContext& context);
SetupPage* cashOnDeliveryPage(const SetupContext& context);

// Questions that several pages ask.
inline constexpr Question changeQuestion{u" Módosítás ", u"Biztos módosítod a beállításokat?"};
inline constexpr Question receiptDefaultsQuestion{u" Visszaállítás alapértékekre. ", u"Biztos mehet a visszaállítás?"};
