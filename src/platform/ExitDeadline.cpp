#include "platform/ExitDeadline.h"

#include <cstdlib>
#include <sys/time.h>
#include <system_error>
#include <thread>

namespace tessaline {

namespace {

void setAlarm(std::chrono::milliseconds time) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
    const std::chrono::microseconds rest = time - seconds;
    itimerval timer{};
    timer.it_value.tv_sec = decltype(timer.it_value.tv_sec)(seconds.count());
    timer.it_value.tv_usec = decltype(timer.it_value.tv_usec)(rest.count());
    ::setitimer(ITIMER_REAL, &timer, nullptr);
}

} // namespace

void setExitDeadline(std::chrono::milliseconds time, int status) {
    try {
        std::thread([time, status] {
            std::this_thread::sleep_for(time);
            std::_Exit(status);
        }).detach();
    } catch (const std::system_error&) {
        setAlarm(time);
    }
}

} // namespace tessaline
