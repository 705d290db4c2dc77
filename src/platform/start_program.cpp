#include "platform/start_program.h"

#include <QProcess>

bool startProgram(const QString& program, const QString& argument) {
    return !program.isEmpty() && QProcess::startDetached(program, {argument});
}
