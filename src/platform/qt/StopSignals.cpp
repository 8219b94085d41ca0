#include "platform/qt/StopSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace tessaline {

namespace {

constexpr std::array stopSignals{SIGTERM, SIGINT, SIGHUP};

/// A signal handler may do little more than write to a pipe.
std::array<int, 2> channel{-1, -1};

using Action = struct sigaction;
std::array<Action, stopSignals.size()> formerActions{}; ///< what the signals did

void noteSignal(int) {
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(channel[1], &byte, 1);
    errno = before;
}

int openChannel() {
    if (::pipe(channel.data()) != 0) qFatal("Cannot create a pipe for signals");
    for (const int end : channel) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return channel[0];
}

} // namespace

StopSignals::StopSignals(std::function<void()> stop)
    : arrived(openChannel(), QSocketNotifier::Read) {
    QObject::connect(&arrived, &QSocketNotifier::activated, &arrived, [stop = std::move(stop)] {
        char byte = 0;
        while (::read(channel[0], &byte, 1) > 0) {
        }
        stop();
    });
    Action action{};
    action.sa_handler = &noteSignal;
    action.sa_flags = int(SA_RESETHAND | SA_RESTART);
    for (std::size_t i = 0; i < stopSignals.size(); ++i) {
        ::sigaction(stopSignals[i], nullptr, &formerActions[i]);
        if (formerActions[i].sa_handler != SIG_IGN) ::sigaction(stopSignals[i], &action, nullptr);
    }
}

StopSignals::~StopSignals() {
    for (std::size_t i = 0; i < stopSignals.size(); ++i)
        ::sigaction(stopSignals[i], &formerActions[i], nullptr);
    arrived.setEnabled(false);
    for (int& end : channel)
        ::close(std::exchange(end, -1));
}

} // namespace tessaline
