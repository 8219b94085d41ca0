// Preloaded into a process, makes one of its calls that touch files below a folder fail. Set by the
// environment:
//   FAULT_FOLDER  the folder, or how the paths of the files begin
//   FAULT_CALL    open, read, write, fsync, rename, close, mkdir or unlink (which means rmdir too);
//                 or thread: the start of one by the standard library
//   FAULT_NUMBER  which of these calls fails, counted from 1 once the process has called armFaults
//   FAULT_ARMED   1: counting begins with the process
//   FAULT_KIND    an error number; "hang" for a call that does not return; "short" for a read or
//   write of half of the bytes; or "full" for
//   a
//                 write of half of the bytes on a disk that is full then
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
#include <pthread.h>
#include <string_view>
#include <sys/stat.h>
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

std::atomic<bool> armed = number("FAULT_ARMED") == 1;
std::atomic<int> calls = 0;
std::atomic<bool> isFirstFailure = false;
std::array<std::atomic<bool>, 1024> watched{};
std::array<std::atomic<bool>, 1024> unsynchronised{}; ///< of those that are watched

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
    isFirstFailure = count == failing;
    const bool isFailing =
        isFirstFailure || (count > failing && failing > 0 && number("FAULT_LASTS") == 1);
    while (isFailing && variable("FAULT_KIND") == "hang")
        ::pause();
    return isFailing;
}

/// Toolkits start threads too, which they cannot do without.
bool isStandardLibrary(const void* caller) {
    Dl_info library{};
    return ::dladdr(caller, &library) != 0 && library.dli_fname &&
           std::strstr(library.dli_fname, "libstdc++") != nullptr;
}

int failure(int error = number("FAULT_KIND")) {
    errno = error;
    return -1;
}

/// No test pulls the plug, and disks are slow: nothing is done. One that fails takes along what was
/// written since the last one, unless it was merely interrupted.
int synchronise(int descriptor) {
    const bool failed = fails("fsync");
    if (failed && number("FAULT_KIND") == EINTR) return failure();
    const bool isLost = unsynchronised[descriptor].exchange(false) && failed;
    if (isLost && ::ftruncate(descriptor, 0) != 0) std::abort();
    return failed ? failure() : 0;
}

size_t half(size_t count) {
    return std::max<size_t>(count / 2, 1);
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

ssize_t read(int descriptor, void* bytes, size_t count) {
    if (isWatched(descriptor) && fails("read")) {
        if (variable("FAULT_KIND") != "short") return failure();
        count = half(count);
    }
    return next<decltype(&::read)>("read")(descriptor, bytes, count);
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
    if (isWatched(descriptor)) {
        if (fails("write")) {
            const bool isFull = variable("FAULT_KIND") == "full";
            if (isFull && !isFirstFailure) return failure(ENOSPC);
            if (!isFull && variable("FAULT_KIND") != "short") return failure();
            count = half(count);
        }
        unsynchronised[descriptor] = true;
    }
    return next<decltype(&::write)>("write")(descriptor, bytes, count);
}

int fsync(int descriptor) {
    return isWatched(descriptor) ? synchronise(descriptor)
                                 : next<decltype(&::fsync)>("fsync")(descriptor);
}

int fdatasync(int descriptor) {
    return isWatched(descriptor) ? synchronise(descriptor)
                                 : next<decltype(&::fdatasync)>("fdatasync")(descriptor);
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

int mkdir(const char* path, mode_t mode) noexcept {
    if (isInFolder(path) && fails("mkdir")) return failure();
    return next<decltype(&::mkdir)>("mkdir")(path, mode);
}

int unlink(const char* path) noexcept {
    if (isInFolder(path) && fails("unlink")) return failure();
    return next<decltype(&::unlink)>("unlink")(path);
}

int rmdir(const char* path) noexcept {
    if (isInFolder(path) && fails("unlink")) return failure();
    return next<decltype(&::rmdir)>("rmdir")(path);
}

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*work)(void*),
                   void* argument) noexcept {
    if (isStandardLibrary(__builtin_return_address(0)) && fails("thread"))
        return number("FAULT_KIND");
    return next<decltype(&::pthread_create)>("pthread_create")(thread, attributes, work, argument);
}

int close(int descriptor) {
    const bool concerns = isWatched(descriptor);
    if (concerns) watched[descriptor] = false;
    const int result = next<decltype(&::close)>("close")(descriptor);
    // Whatever it answers, the descriptor is gone.
    return concerns && fails("close") ? failure() : result;
}
}
