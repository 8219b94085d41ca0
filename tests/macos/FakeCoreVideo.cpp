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
    Fault fault = Fault::none;
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

void breakDown(Fault fault) {
    state.fault = fault;
}

bool refresh(std::uint64_t hostTime) {
    return state.callback && keepCall()(hostTime);
}

std::function<bool(std::uint64_t)> keepCall() {
    return [callback = state.callback, context = state.context](std::uint64_t hostTime) {
        const CVTimeStamp now{};
        const CVTimeStamp output{.hostTime = hostTime};
        CVOptionFlags flagsOut = 0;
        return callback(theLink(), &now, &output, 0, &flagsOut, context) == kCVReturnSuccess;
    };
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
    if (state.fault == Fault::settingTheCallback) return kCVReturnError;
    state.callback = callback;
    state.context = userInfo;
    return kCVReturnSuccess;
}

CVReturn CVDisplayLinkStart(CVDisplayLinkRef /*displayLink*/) {
    if (state.fault == Fault::starting) return kCVReturnError;
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
    if (cf == theLink()) ++state.releases;
}
