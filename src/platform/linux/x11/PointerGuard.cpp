#include "platform/linux/x11/PointerGuard.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tessaline {

namespace {

constexpr char watchWord = 'w';
constexpr char restWord = 'r';

/// The protocol's request KillClient, as it goes over the wire in this machine's byte order.
struct KillClientRequest {
    std::uint8_t opcode = 113;
    std::uint8_t unused = 0;
    std::uint16_t lengthInWords = 2;
    std::uint32_t resource = 0;
};
static_assert(sizeof(KillClientRequest) == 8);

/// Of the program's files it keeps two open only: others would hold locks and pipes of the
/// program's longer than that lives.
void closeAllBut(int one, int other) {
    const auto low = static_cast<unsigned>(std::min(one, other));
    const auto high = static_cast<unsigned>(std::max(one, other));
    if (low > 0) close_range(0, low - 1, 0);
    if (high > low + 1) close_range(low + 1, high - 1, 0);
    close_range(high + 1, ~0U, 0);
}

/// What the terminal does to the program, and how the program handles signals, is not for it.
void standApart() {
    setsid();
    for (int number = 1; number < NSIG; ++number)
        signal(number, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    prctl(PR_SET_NAME, "pointer-guard");
}

/// The whole life of the process. It came from a program with several threads, so it may call
/// nothing that allocates or locks.
[[noreturn]] void guard(int socket, int server, std::uint32_t resource) {
    standApart();
    closeAllBut(socket, server);
    const KillClientRequest request{.resource = resource};
    bool isWatching = false;
    for (;;) {
        pollfd source{socket, POLLIN, 0};
        const int ready =
            poll(&source, 1, isWatching ? static_cast<int>(PointerGuard::patience.count()) : -1);
        if (ready == 0) {
            isWatching = false;
            if (write(server, &request, sizeof request) != sizeof request) _exit(1);
        } else if (ready > 0) {
            char word = 0;
            if (read(socket, &word, 1) != 1) _exit(0);
            isWatching = word == watchWord;
        }
    }
}

/// No signal may reach the new process while it has the handlers of this one.
pid_t forkWithoutSignals(sigset_t* before) {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, before);
    return fork();
}

} // namespace

std::unique_ptr<PointerGuard> PointerGuard::start(std::uint32_t resource) {
    Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0) return nullptr;
    std::array<int, 2> sockets{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) != 0) return nullptr;
    const int server = xcb_get_file_descriptor(connection.get());

    sigset_t before;
    const pid_t process = forkWithoutSignals(&before);
    if (process == 0) guard(sockets[1], server, resource);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    close(sockets[1]);
    if (process < 0) {
        close(sockets[0]);
        return nullptr;
    }
    return std::unique_ptr<PointerGuard>(
        new PointerGuard(std::move(connection), sockets[0], process));
}

PointerGuard::PointerGuard(Connection serverConnection, int ownSocket, pid_t ownProcess)
    : connection(std::move(serverConnection)), socket(ownSocket), process(ownProcess) {}

PointerGuard::~PointerGuard() {
    close(socket);
    kill(process, SIGKILL); // it may be stopped itself
    waitpid(process, nullptr, 0);
}

bool PointerGuard::watch() {
    return tell(watchWord);
}

void PointerGuard::rest() {
    tell(restWord);
}

bool PointerGuard::tell(char word) const {
    return send(socket, &word, 1, MSG_NOSIGNAL | MSG_DONTWAIT) == 1;
}

} // namespace tessaline
