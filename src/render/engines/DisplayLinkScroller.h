#pragma once

#include "platform/DisplayLink.h"
#include "platform/Lifetime.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

namespace tessaline {

class DisplayLinkScrollerDelegate;
class MainQueue;

/// Turns the refreshes of a display into scroll distances and hands them to a delegate through the
/// main queue. The display link's thread does the counting in between.
class DisplayLinkScroller {
public:
    /// Makes its display link at once. Where there is none, or one that does not start, says so on
    /// standard output; the engine then never moves anything. The queue must outlive the engine.
    DisplayLinkScroller(DisplayLinkMaker& links, MainQueue& queue);
    ~DisplayLinkScroller();
    DisplayLinkScroller(const DisplayLinkScroller&) = delete;
    DisplayLinkScroller& operator=(const DisplayLinkScroller&) = delete;

    /// Sets the receiver of the distances, which is held weakly.
    void setDelegate(std::weak_ptr<DisplayLinkScrollerDelegate> receiver);

    /// Whether there is a display link. One that does not start is given up.
    bool isAvailable() const { return displayLink != nullptr; }

    /// Begins to scroll. Does nothing while running or without a display link.
    void start();

    /// Ends scrolling and forgets when the last frame was; keeps a distance not yet handed out.
    void stop();

    /// Sets the speed in points per second; 0 and less produce nothing. 20 at first.
    void updatePixelsPerSecond(double value);

    /// Whether the engine has been started.
    bool running() const { return isRunning; }

private:
    void tick(std::uint64_t hostTime);
    double secondsSinceLastFrame(std::uint64_t hostTime) const;
    void postScroll(double deltaY);
    static void reportFallback();
    void deliver(double deltaY);

    MainQueue& mainQueue;
    std::weak_ptr<DisplayLinkScrollerDelegate> delegate;
    bool isRunning = false;

    std::mutex lock;
    double pixelsPerSecond = 20.0;

    // These two belong to the link's thread while the link runs, and to the main thread otherwise.
    double scrollRemainder = 0.0;
    std::optional<std::uint64_t> lastTimestamp;

    Lifetime lifetime;
    std::unique_ptr<DisplayLink> displayLink;
};

} // namespace tessaline
