#pragma once

#include "records/program_folder.h"

#include <QDate>
#include <QLocale>
#include <QStringList>

// The lists of the yellow check's catalogue boxes. Each opens its file, and so creates a missing one.

// First title line, from Jogcimek.dat, trimmed.
QStringList titleList(const ProgramFolder& folder);

// The locale of the dates that the user reads: the system's, or Hungarian where the system has none.
QLocale dateLocale();
// Second title line, from Jogcimek2.dat, trimmed. The entry "Fiz. hat.:" is offered with the date ten days after
// `today` behind it.
QStringList secondTitleList(const ProgramFolder& folder, QDate today, const QLocale& locale = dateLocale());

// Notice, from Kozlem.dat: an empty entry, then all others as stored.
QStringList noticeList(const ProgramFolder& folder);
