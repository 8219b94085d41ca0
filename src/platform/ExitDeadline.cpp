#include "platform/ExitDeadline.h"

#include <cstdlib>
#include <thread>

namespace tessaline {

void setExitDeadline(std::chrono::milliseconds time, int status) {
    std::thread([time, status] {
        std::this_thread::sleep_for(time);
        std::_Exit(status);
    }).detach();
}

} // namespace tessaline
