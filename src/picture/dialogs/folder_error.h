#pragma once

#include <QString>

// Why a folder can't be opened, as the box tells it: our words, the number of the error, and the system's own text.
// Empty if it can be.
QString folderError(const QString& folder);
