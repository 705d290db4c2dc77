#pragma once

#include "records/program_folder.h"

#include <QLockFile>

// Says that the program runs on a folder, to another copy of it on this machine or on another one that shares the
// folder. The lock of a killed process counts for nothing. A folder that can't be written has no lock: nobody can
// change anything there.
class ProgramLock {
public:
    explicit ProgramLock(const ProgramFolder& folder);

    // Who has the folder, as "machine, user"; empty if it is ours.
    const QString& holder() const { return holder_; }

private:
    QLockFile lock_;
    QString holder_;
};
