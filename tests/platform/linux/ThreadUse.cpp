#include "platform/linux/ThreadUse.h"

#include <unistd.h>

#include <fstream>

namespace tessaline {

int currentThread() {
    return static_cast<int>(gettid());
}

ThreadUse threadUse(int thread) {
    const std::string folder = "/proc/self/task/" + std::to_string(thread);
    ThreadUse use;
    std::ifstream status(folder + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.find("ctxt_switches") != std::string::npos) use.contextSwitches += line + '\n';
    }
    std::ifstream(folder + "/schedstat") >> use.cpuTime;
    return use;
}

} // namespace tessaline
