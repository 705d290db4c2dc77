#pragma once

#include <cstdlib>
#include <fstream>
#include <string>

// The most memory that this process has had so far, in MB. Not getrusage(), which counts what started the process, too.
inline double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    const std::string label = "VmHWM:";
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(label)) return std::strtod(line.c_str() + label.size(), nullptr) / 1024;
    return 0;
}
