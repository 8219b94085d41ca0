// Preloaded into a process, makes one of its calls that touch files below a folder fail. Set by the
// environment:
//   FAULT_FOLDER  the folder
//   FAULT_CALL    open, write, fsync, rename or close
//   FAULT_NUMBER  which of these calls fails, counted from 1 once the process has called armFaults
//   FAULT_KIND    an error number; or "short" for a write that takes half of its bytes
//   FAULT_LASTS   1: all later calls of the kind fail as well
//   FAULT_REPORT  the file that tells, when the process ends, how many such calls there were

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace {

std::string_view variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

int number(const char* name) {
    return std::atoi(variable(name).data());
}

template <typename Function>
Function next(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

std::atomic<bool> armed = false;
std::atomic<int> calls = 0;
std::array<std::atomic<bool>, 1024> watched{};

bool isWatched(int descriptor) {
    return descriptor >= 0 && std::size_t(descriptor) < watched.size() && watched[descriptor];
}

void watch(int descriptor) {
    if (descriptor >= 0 && std::size_t(descriptor) < watched.size()) watched[descriptor] = true;
}

bool isInFolder(const char* path) {
    const std::string_view folder = variable("FAULT_FOLDER");
    return path && !folder.empty() && std::string_view(path).substr(0, folder.size()) == folder;
}

/// Whether this call of a kind is one that fails.
bool fails(std::string_view call) {
    if (!armed || variable("FAULT_CALL") != call) return false;
    const int count = ++calls;
    const int failing = number("FAULT_NUMBER");
    return count == failing || (count > failing && failing > 0 && number("FAULT_LASTS") == 1);
}

int failure() {
    errno = number("FAULT_KIND");
    return -1;
}

int openAnyhow(const char* function, int folder, const char* path, int flags, mode_t mode) {
    const bool concerns = isInFolder(path);
    if (concerns && fails("open")) return failure();
    using OpenAt = int (*)(int, const char*, int, mode_t);
    const int descriptor = next<OpenAt>(function)(folder, path, flags, mode);
    if (concerns) watch(descriptor);
    return descriptor;
}

mode_t modeOf(int flags, va_list rest) {
    return flags & (O_CREAT | O_TMPFILE) ? mode_t(va_arg(rest, int)) : mode_t(0);
}

struct Reporter {
    ~Reporter() {
        const std::string_view path = variable("FAULT_REPORT");
        std::FILE* file = path.empty() ? nullptr : std::fopen(path.data(), "w");
        if (!file) return;
        std::fprintf(file, "%d\n", calls.load());
        std::fclose(file);
    }
} reporter;

} // namespace

extern "C" {

void armFaults() {
    armed = true;
}

void disarmFaults() {
    armed = false;
}

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return openAnyhow("openat", AT_FDCWD, path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return openAnyhow("openat64", AT_FDCWD, path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return openAnyhow("openat", folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return openAnyhow("openat64", folder, path, flags, mode);
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
    if (isWatched(descriptor) && fails("write")) {
        if (variable("FAULT_KIND") != "short") return failure();
        count = std::max<size_t>(count / 2, 1);
    }
    return next<decltype(&::write)>("write")(descriptor, bytes, count);
}

int fsync(int descriptor) {
    if (isWatched(descriptor) && fails("fsync")) return failure();
    return next<decltype(&::fsync)>("fsync")(descriptor);
}

int fdatasync(int descriptor) {
    if (isWatched(descriptor) && fails("fsync")) return failure();
    return next<decltype(&::fdatasync)>("fdatasync")(descriptor);
}

int rename(const char* from, const char* to) noexcept {
    if (isInFolder(to) && fails("rename")) return failure();
    return next<decltype(&::rename)>("rename")(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    if (isInFolder(to) && fails("rename")) return failure();
    return next<decltype(&::renameat2)>("renameat2")(fromFolder, from, toFolder, to, flags);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    if (isInFolder(to) && fails("rename")) return failure();
    return next<decltype(&::linkat)>("linkat")(fromFolder, from, toFolder, to, flags);
}

int close(int descriptor) {
    const bool concerns = isWatched(descriptor);
    if (concerns) watched[descriptor] = false;
    const int result = next<decltype(&::close)>("close")(descriptor);
    // Whatever it answers, the descriptor is gone.
    return concerns && fails("close") ? failure() : result;
}
}
