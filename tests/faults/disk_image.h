#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

// A file as it lies on the disk; a folder has a path that ends with '/', and no bytes.
struct StoredFile {
    std::string bytes;
    std::filesystem::file_time_type changed{};
};
// Everything below a folder, by its path within.
using DiskImage = std::map<std::string, StoredFile>;

DiskImage readImage(const std::string& folder);
// Makes the folder hold just that, the times of change too; what is so already isn't touched.
void writeImage(const std::string& folder, const DiskImage& image);

// One thing that a process has asked of the disk. Files go by number: those of the image first, in its order, then new
// ones as they come. A folder is a file without bytes.
struct DiskStep {
    enum class Kind {
        names,      // which file each of these paths leads to from now on, noFile for none
        write,      // `bytes` at `offset` of `file`
        resize,     // `file` to the length `offset`
        flushFile,  // `file` is on the disk
        flushFolder // the names in `folder` are
    };
    static constexpr int noFile = -1;
    Kind kind;
    int file = noFile;
    std::vector<std::pair<std::string, int>> names{};
    std::size_t offset = 0;
    std::string bytes{};
    std::string folder{}; // with '/' at its end; empty for the top one
};

// What the steps come to.
DiskImage imageAfter(const DiskImage& before, const std::vector<DiskStep>& steps);

// What a disk may hold when its power fails in the middle of these steps or, `ended`, behind them, each image once.
// Whatever was flushed is there. Of the changes of names that weren't, any three or fewer have come through, in any
// order, or are missing. Of a file, what wasn't flushed is there, is missing, or is zeros where the file has grown.
using VisitImage = std::function<void(const DiskImage& image, bool ended)>;
void forEachPowerFailure(const DiskImage& before, const std::vector<DiskStep>& steps, const VisitImage& visit);
