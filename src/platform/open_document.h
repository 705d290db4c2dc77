#pragma once

#include <QString>

// Opens a file in the program that the system has for its kind. Whether that succeeds is between the system and the
// user.
void openDocument(const QString& path);
