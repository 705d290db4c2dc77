#include "records/file_stamp.h"

#include <chrono>
#include <filesystem>

using namespace std::chrono;

std::optional<FileStamp> fileStamp(const QString& path) {
    const std::filesystem::path file(path.toStdU16String());
    std::error_code failed;
    const auto size = std::filesystem::file_size(file, failed);
    if (failed) return std::nullopt;
    const auto written = std::filesystem::last_write_time(file, failed);
    if (failed) return std::nullopt;
    const nanoseconds time = file_clock::to_sys(written).time_since_epoch();
    return FileStamp{static_cast<qint64>(size), time.count()};
}

bool showsNextWrite(const FileStamp& stamp) {
    constexpr seconds coarsest{2};
    return system_clock::now().time_since_epoch() - nanoseconds(stamp.mtimeNs) > coarsest;
}
