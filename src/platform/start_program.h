#pragma once

#include <QString>

// Starts a program of its own with one argument, neither of them taken apart at blanks. False if it can't be started.
bool startProgram(const QString& program, const QString& argument);
