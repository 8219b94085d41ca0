#include "macos/FakeCoreVideo.h"

#include <CoreVideo/CoreVideo.h>

#include <thread>

namespace tessaline::FakeCoreVideo {

namespace {

struct State {
    Creation creation = Creation::succeeds;
    Stopping stopping = Stopping::returnsAtOnce;
    CVDisplayLinkOutputCallback callback = nullptr;
    void* context = nullptr;
    bool running = false;
    int starts = 0;
    int stops = 0;
    int releases = 0;
};

State state;

CVDisplayLinkRef theLink() {
    return reinterpret_cast<CVDisplayLinkRef>(&state);
}

} // namespace

void reset(Creation creation, Stopping stopping) {
    state = {.creation = creation, .stopping = stopping};
}

bool refresh(std::uint64_t hostTime) {
    if (!state.callback) return false;
    const CVTimeStamp now{};
    const CVTimeStamp output{.hostTime = hostTime};
    CVOptionFlags flagsOut = 0;
    return state.callback(theLink(), &now, &output, 0, &flagsOut, state.context) ==
           kCVReturnSuccess;
}

void loseContext() {
    state.context = nullptr;
}

bool isRunning() {
    return state.running;
}

int starts() {
    return state.starts;
}

int stops() {
    return state.stops;
}

int releases() {
    return state.releases;
}

} // namespace tessaline::FakeCoreVideo

using namespace tessaline::FakeCoreVideo;

CVReturn CVDisplayLinkCreateWithActiveCGDisplays(CVDisplayLinkRef* displayLinkOut) {
    if (state.creation == Creation::fails) return kCVReturnError;
    if (state.creation == Creation::succeeds) *displayLinkOut = theLink();
    return kCVReturnSuccess;
}

CVReturn CVDisplayLinkSetOutputCallback(CVDisplayLinkRef /*displayLink*/,
                                        CVDisplayLinkOutputCallback callback, void* userInfo) {
    state.callback = callback;
    state.context = userInfo;
    return kCVReturnSuccess;
}

CVReturn CVDisplayLinkStart(CVDisplayLinkRef /*displayLink*/) {
    ++state.starts;
    state.running = true;
    return kCVReturnSuccess;
}

CVReturn CVDisplayLinkStop(CVDisplayLinkRef /*displayLink*/) {
    if (state.stopping == Stopping::waitsForRefresh) std::thread([] { refresh(1000); }).join();
    ++state.stops;
    state.running = false;
    return kCVReturnSuccess;
}

double CVGetHostClockFrequency() {
    return 24'000'000.0;
}

void CFRelease(CFTypeRef cf) {
    if (cf != theLink()) return;
    ++state.releases;
    state.callback = nullptr;
}
