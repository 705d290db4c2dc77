#include "disk_image.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

namespace fs = std::filesystem;

namespace {

std::string bytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

DiskImage readImage(const std::string& folder) {
    DiskImage image;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().string().substr(folder.size() + 1);
        if (entry.is_directory())
            image[name + '/'];
        else
            image[name] = {bytesOf(entry.path()), entry.last_write_time()};
    }
    return image;
}

void writeImage(const std::string& folder, const DiskImage& image) {
    const DiskImage present = readImage(folder);
    for (auto entry = present.rbegin(); entry != present.rend(); ++entry) // the contents of a folder ahead of it
        if (!image.contains(entry->first)) fs::remove_all(fs::path(folder) / entry->first);
    for (const auto& [name, file] : image) {
        const fs::path path = fs::path(folder) / name;
        if (name.ends_with('/')) {
            fs::create_directories(path);
            continue;
        }
        const auto found = present.find(name);
        const bool differs = found == present.end() || found->second.bytes != file.bytes;
        if (differs) std::ofstream(path, std::ios::binary) << file.bytes;
        if (differs || found->second.changed != file.changed) fs::last_write_time(path, file.changed);
    }
}

namespace {

// What became of the bytes of a file that weren't flushed.
enum class Unflushed { missing, zeros, there };
constexpr Unflushed everyFate[] = {Unflushed::missing, Unflushed::zeros, Unflushed::there};

using Steps = std::vector<const DiskStep*>;

void carryOut(const DiskStep& step, std::string& bytes, Unflushed fate) {
    if (fate == Unflushed::missing) return;
    if (step.kind == DiskStep::Kind::resize) return bytes.resize(step.offset);
    // Blocks that a file had before keep their old bytes; it is the new ones that may never have been written.
    const std::size_t end = step.offset + step.bytes.size();
    const std::size_t oldSize = bytes.size();
    if (end > oldSize) bytes.resize(end);
    if (fate == Unflushed::there) bytes.replace(step.offset, step.bytes.size(), step.bytes);
}

std::string folderOf(const std::string& path) {
    const auto slash = path.find_last_of('/', path.size() - 2);
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// The disk in the course of the steps.
class Disk {
public:
    explicit Disk(const DiskImage& before) {
        for (const auto& [name, file] : before) {
            names_[name] = static_cast<int>(files_.size());
            files_.push_back(file);
        }
    }

    void take(const DiskStep& step) {
        using Kind = DiskStep::Kind;
        switch (step.kind) {
        case Kind::names:
            pendingNames_.push_back(&step);
            break;
        case Kind::write:
        case Kind::resize:
            pendingBytes_[step.file].push_back(&step);
            break;
        case Kind::flushFile:
            flush(step.file);
            break;
        case Kind::flushFolder:
            std::erase_if(pendingNames_, [&](const DiskStep* pending) {
                if (folderOf(pending->names[0].first) != step.folder) return false;
                rename(*pending, names_);
                return true;
            });
            break;
        }
    }

    DiskImage withEverything() {
        for (const auto& [file, steps] : std::map(pendingBytes_))
            flush(file);
        for (const DiskStep* step : pendingNames_)
            rename(*step, names_);
        return image(names_);
    }

    void forEachState(const std::function<void(const DiskImage&)>& visit) {
        forEachChoice([&](const Steps& chosen) {
            std::map<std::string, int> names = names_;
            for (const DiskStep* step : chosen)
                rename(*step, names);
            forEachFate(0, names, visit);
        });
    }

private:
    StoredFile& fileAt(int number) {
        if (number >= static_cast<int>(files_.size())) files_.resize(static_cast<std::size_t>(number) + 1);
        return files_[static_cast<std::size_t>(number)];
    }

    void flush(int file) {
        for (const DiskStep* pending : pendingBytes_[file])
            carryOut(*pending, fileAt(file).bytes, Unflushed::there);
        pendingBytes_.erase(file);
    }

    // A name in a folder that isn't there isn't either.
    DiskImage image(const std::map<std::string, int>& names) {
        DiskImage image;
        for (const auto& [path, file] : names)
            if (folderOf(path).empty() || names.contains(folderOf(path))) image[path] = fileAt(file);
        return image;
    }

    static void rename(const DiskStep& step, std::map<std::string, int>& names) {
        for (const auto& [path, file] : step.names)
            if (file == DiskStep::noFile)
                names.erase(path);
            else
                names[path] = file;
    }

    template<class Visit>
    void forEachChoice(Visit visit) const {
        const std::size_t count = pendingNames_.size();
        // Each list of up to three places, in any order; then all but those.
        const auto choose = [&](const auto& self, std::vector<std::size_t> chosen) -> void {
            Steps steps;
            for (const std::size_t place : chosen)
                steps.push_back(pendingNames_[place]);
            visit(steps);
            if (std::is_sorted(chosen.begin(), chosen.end())) {
                Steps others;
                for (std::size_t place = 0; place < count; ++place)
                    if (std::find(chosen.begin(), chosen.end(), place) == chosen.end())
                        others.push_back(pendingNames_[place]);
                visit(others);
            }
            for (std::size_t place = 0; chosen.size() < 3 && place < count; ++place) {
                if (std::find(chosen.begin(), chosen.end(), place) != chosen.end()) continue;
                std::vector<std::size_t> more = chosen;
                more.push_back(place);
                self(self, std::move(more));
            }
        };
        choose(choose, {});
    }

    // Each file with unflushed bytes takes each fate, whatever the others'.
    void forEachFate(std::size_t decided, const std::map<std::string, int>& names,
                     const std::function<void(const DiskImage&)>& visit) {
        if (decided == pendingBytes_.size()) return visit(image(names));
        const auto& [file, steps] = *std::next(pendingBytes_.begin(), static_cast<std::ptrdiff_t>(decided));
        const std::string flushed = fileAt(file).bytes;
        for (const Unflushed fate : everyFate) {
            for (const DiskStep* step : steps)
                carryOut(*step, fileAt(file).bytes, fate);
            forEachFate(decided + 1, names, visit);
            fileAt(file).bytes = flushed;
        }
    }

    std::map<std::string, int> names_; // as flushed
    std::vector<StoredFile> files_;    // the same
    Steps pendingNames_;
    std::map<int, Steps> pendingBytes_; // by file
};

Disk diskAfter(const DiskImage& before, const std::vector<DiskStep>& steps) {
    Disk disk(before);
    for (const DiskStep& step : steps)
        disk.take(step);
    return disk;
}

} // namespace

DiskImage imageAfter(const DiskImage& before, const std::vector<DiskStep>& steps) {
    return diskAfter(before, steps).withEverything();
}

void forEachPowerFailure(const DiskImage& before, const std::vector<DiskStep>& steps, const VisitImage& visit) {
    std::set<std::map<std::string, std::string>> seen;
    const auto visitOnce = [&](bool ended) {
        return [&, ended](const DiskImage& image) {
            std::map<std::string, std::string> bytes;
            for (const auto& [path, file] : image)
                bytes[path] = file.bytes;
            if (seen.insert(std::move(bytes)).second) visit(image, ended);
        };
    };
    diskAfter(before, steps).forEachState(visitOnce(true)); // more is asked of these
    Disk disk(before);
    for (const DiskStep& step : steps) {
        disk.forEachState(visitOnce(false));
        disk.take(step);
    }
}
