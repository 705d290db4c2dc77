#include "intercepted_calls.h"

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <map>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct State {
    std::string folder; // with '/' at its end
    Fault fault;
    int at;
    std::vector<Call> calls{};
    std::vector<DiskStep> steps{};
    std::map<std::string, int> files{}; // by the path within the folder, folders with '/' at their end
    int fileCount = 0;
    struct Handle {
        std::string path; // as it was opened; folders with '/' at their end
        int file;         // noFile for a folder
    };
    std::map<int, Handle> handles{};

    int newFile(const std::string& path) { return files[path] = fileCount++; }
    void note(DiskStep step) { steps.push_back(std::move(step)); }
    void name(std::vector<std::pair<std::string, int>> names) {
        for (const auto& [path, file] : names)
            if (file == DiskStep::noFile)
                files.erase(path);
            else
                files[path] = file;
        note({.kind = DiskStep::Kind::names, .names = std::move(names)});
    }
    // The path within the folder; nothing if it isn't there.
    const char* within(const char* path) const {
        return std::strncmp(path, folder.c_str(), folder.size()) == 0 ? path + folder.size() : nullptr;
    }
    Handle* handle(int descriptor) {
        const auto found = handles.find(descriptor);
        return found == handles.end() ? nullptr : &found->second;
    }
};

std::unique_ptr<State> state;

int errorOf(Fault fault) {
    switch (fault) {
    case Fault::eio:
        return EIO;
    case Fault::enospc:
        return ENOSPC;
    case Fault::eacces:
        return EACCES;
    case Fault::eintr:
        return EINTR;
    default:
        return 0;
    }
}

// Counts a call. True: the fault befalls it, and errno is set.
bool isBefallen(Call call) {
    const int number = static_cast<int>(state->calls.size());
    state->calls.push_back(call);
    if (number != state->at || !canBefall(state->fault, call)) return false;
    if (state->fault == Fault::kill) _exit(killedStatus);
    errno = errorOf(state->fault);
    return true;
}

template<class Function>
Function* real(Function* /*of this type*/, const char* name) {
    void* found = dlsym(RTLD_NEXT, name);
    Function* function = nullptr;
    std::memcpy(&function, &found, sizeof function);
    return function;
}
#define REAL(name) (real(&::name, #name))

int openFile(const char* path, int flags, mode_t mode) {
    static const auto next = REAL(open);
    const char* within = state ? state->within(path) : nullptr;
    if (within == nullptr) return next(path, flags, mode);
    struct stat info {};
    const bool isThere = stat(path, &info) == 0;
    const bool isFolder = isThere && S_ISDIR(info.st_mode);
    if (isBefallen((flags & O_CREAT) != 0 ? Call::create : Call::open)) return -1;
    const int descriptor = next(path, flags, mode);
    if (descriptor < 0) return descriptor;
    const std::string name = std::string(within) + (isFolder && *within != '\0' ? "/" : "");
    if (isFolder) {
        state->handles[descriptor] = {name, DiskStep::noFile};
        return descriptor;
    }
    if (!isThere) state->name({{name, state->newFile(name)}});
    const int file = state->files[name];
    state->handles[descriptor] = {name, file};
    if (isThere && (flags & O_TRUNC) != 0 && info.st_size > 0)
        state->note({.kind = DiskStep::Kind::resize, .file = file});
    return descriptor;
}

// The top folder is opened without the slash that its files have.
int openPath(const char* path, int flags, mode_t mode) {
    if (state && std::string(path) + '/' == state->folder) return openFile(state->folder.c_str(), flags, mode);
    return openFile(path, flags, mode);
}

// Noted alone: the steps of the journal are the disk.
int flush(const State::Handle& handle) {
    if (isBefallen(Call::flush)) return -1;
    const bool isFolder = handle.file == DiskStep::noFile;
    state->note({.kind = isFolder ? DiskStep::Kind::flushFolder : DiskStep::Kind::flushFile,
                 .file = handle.file,
                 .folder = handle.path});
    return 0;
}

template<class CarryOut>
int resizeFile(int descriptor, off_t length, CarryOut carryOut) {
    const State::Handle* handle = state ? state->handle(descriptor) : nullptr;
    if (handle != nullptr && isBefallen(Call::resize)) return -1;
    const int result = carryOut();
    if (handle != nullptr && result == 0)
        state->note({.kind = DiskStep::Kind::resize, .file = handle->file, .offset = static_cast<std::size_t>(length)});
    return result;
}

template<class CarryOut>
int renamePath(const char* from, const char* to, CarryOut carryOut) {
    const char* fromWithin = state ? state->within(from) : nullptr;
    const char* toWithin = state ? state->within(to) : nullptr;
    if (fromWithin == nullptr || toWithin == nullptr) return carryOut();
    if (isBefallen(Call::rename)) return -1;
    const int result = carryOut();
    if (result != 0) return result;
    state->name({{fromWithin, DiskStep::noFile}, {toWithin, state->files[fromWithin]}});
    return 0;
}

template<class CarryOut>
int changeName(const char* path, Call call, CarryOut carryOut) {
    const char* within = state ? state->within(path) : nullptr;
    if (within == nullptr) return carryOut();
    if (isBefallen(call)) return -1;
    const int result = carryOut();
    if (result != 0) return result;
    if (call == Call::folder)
        state->name({{std::string(within) + '/', state->newFile(std::string(within) + '/')}});
    else
        state->name({{within, DiskStep::noFile}});
    return 0;
}

} // namespace

const char* nameOf(Call call) {
    static constexpr const char* names[] = {"open",  "creation", "read",    "write",      "flush",
                                            "close", "renaming", "removal", "new folder", "resizing"};
    return names[static_cast<int>(call)];
}

bool canBefall(Fault fault, Call call) {
    const auto isOneOf = [call](auto... calls) { return ((call == calls) || ...); };
    switch (fault) {
    case Fault::none:
        return false;
    case Fault::kill:
    case Fault::eio:
        return true;
    case Fault::enospc:
        return isOneOf(Call::create, Call::write, Call::flush, Call::close, Call::rename, Call::folder, Call::resize);
    case Fault::eacces:
        return isOneOf(Call::open, Call::create, Call::rename, Call::unlink, Call::folder);
    case Fault::eintr:
        return isOneOf(Call::open, Call::create, Call::read, Call::write, Call::flush, Call::close, Call::resize);
    case Fault::shortWrite:
        return call == Call::write;
    }
    return false;
}

Interception::Interception(const std::string& folder, Fault fault, int at) {
    auto begun = std::make_unique<State>(State{.folder = folder + '/', .fault = fault, .at = at});
    for (const auto& [name, file] : readImage(folder))
        begun->newFile(name);
    state = std::move(begun);
}

Interception::~Interception() { state.reset(); }

const std::vector<Call>& Interception::calls() const { return state->calls; }
const std::vector<DiskStep>& Interception::steps() const { return state->steps; }

extern "C" {

#define OPEN(name)                                                                                                     \
    int name(const char* path, int flags, ...) {                                                                       \
        va_list arguments;                                                                                             \
        va_start(arguments, flags);                                                                                    \
        const mode_t mode = (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(arguments, int)) : mode_t{0};          \
        va_end(arguments);                                                                                             \
        return openPath(path, flags, mode);                                                                            \
    }
OPEN(open)
OPEN(open64)

ssize_t read(int descriptor, void* bytes, size_t length) {
    static const auto next = REAL(read);
    if (state && state->handle(descriptor) != nullptr && isBefallen(Call::read)) return -1;
    return next(descriptor, bytes, length);
}

ssize_t write(int descriptor, const void* bytes, size_t length) {
    static const auto next = REAL(write);
    const State::Handle* handle = state ? state->handle(descriptor) : nullptr;
    if (handle == nullptr) return next(descriptor, bytes, length);
    if (isBefallen(Call::write)) {
        if (state->fault != Fault::shortWrite || length < 2) return -1;
        length /= 2;
    }
    const auto offset = static_cast<std::size_t>(lseek(descriptor, 0, SEEK_CUR));
    const ssize_t written = next(descriptor, bytes, length);
    if (written > 0)
        state->note({.kind = DiskStep::Kind::write,
                     .file = handle->file,
                     .offset = offset,
                     .bytes = {static_cast<const char*>(bytes), static_cast<std::size_t>(written)}});
    return written;
}

#define FLUSH(name)                                                                                                    \
    int name(int descriptor) {                                                                                         \
        static const auto next = REAL(name);                                                                           \
        const State::Handle* handle = state ? state->handle(descriptor) : nullptr;                                     \
        return handle == nullptr ? next(descriptor) : flush(*handle);                                                  \
    }
FLUSH(fsync)
FLUSH(fdatasync)

// A file is closed even where that is told to have failed.
int close(int descriptor) {
    static const auto next = REAL(close);
    const bool counts = state && state->handle(descriptor) != nullptr;
    const bool failed = counts && isBefallen(Call::close);
    const int error = errno;
    if (counts) state->handles.erase(descriptor);
    const int result = next(descriptor);
    if (failed) errno = error;
    return failed ? -1 : result;
}

#define RESIZE(name)                                                                                                   \
    int name(int descriptor, off_t length) noexcept {                                                                  \
        static const auto next = REAL(name);                                                                           \
        return resizeFile(descriptor, length, [&] { return next(descriptor, length); });                               \
    }
RESIZE(ftruncate)
RESIZE(ftruncate64)

int rename(const char* from, const char* to) noexcept {
    static const auto next = REAL(rename);
    return renamePath(from, to, [&] { return next(from, to); });
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    static const auto next = REAL(renameat2);
    return renamePath(from, to, [&] { return next(fromFolder, from, toFolder, to, flags); });
}
int unlink(const char* path) noexcept {
    static const auto next = REAL(unlink);
    return changeName(path, Call::unlink, [&] { return next(path); });
}
int mkdir(const char* path, mode_t mode) noexcept {
    static const auto next = REAL(mkdir);
    return changeName(path, Call::folder, [&] { return next(path, mode); });
}

} // extern "C"
