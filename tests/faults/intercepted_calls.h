#pragma once

#include "disk_image.h"

#include <string>
#include <vector>

// The calls by which this process reads and changes the files of one folder. The executable defines them itself, so
// that the toolkit's libraries find these ahead of the system's own: they count, fail where they are told to, and keep
// a journal of what reaches the disk. Without a folder to watch they only pass on.

enum class Call { open, create, read, write, flush, close, rename, unlink, folder, resize };
const char* nameOf(Call call);

// What befalls the call that is chosen.
enum class Fault { none, kill, eio, enospc, eacces, eintr, shortWrite };

// Whether a system ever answers such a call in such a way.
bool canBefall(Fault fault, Call call);

// Status of a process that ended at its call.
constexpr int killedStatus = 77;

class Interception {
public:
    // Begins at once. The fault befalls call `at`, counted from 0, before it is carried out; at `close` behind it.
    Interception(const std::string& folder, Fault fault, int at);
    ~Interception();
    Interception(const Interception&) = delete;
    Interception& operator=(const Interception&) = delete;

    const std::vector<Call>& calls() const;
    const std::vector<DiskStep>& steps() const;
};
