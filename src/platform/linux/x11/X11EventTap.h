#pragma once

#include "platform/EventTap.h"

#include <QObject>

#include <chrono>
#include <memory>
#include <thread>

namespace tessaline {

class X11TapSession;

/// An event tap by means of grabs, which have to say beforehand what they take: it swallows the
/// wheel and the middle, right and fourth button while Control is held, and shows the handler these
/// only. Its handler therefore has to be one that swallows all of them; the answer comes too late
/// to change anything. What it does not show, it never touches.
///
/// It talks to the server on a thread of its own, so that input never waits for the main thread.
class X11EventTap final : public EventTap {
public:
    /// Null where there is no X server, where other programs hold everything already, or
    /// where the system refuses the thread.
    static std::unique_ptr<EventTap> create(Handler handler);

    ~X11EventTap() override;
    X11EventTap(const X11EventTap&) = delete;
    X11EventTap& operator=(const X11EventTap&) = delete;

    /// Does nothing: the server never switches it off.
    void enable() override;

private:
    explicit X11EventTap(Handler handler);
    std::unique_ptr<X11TapSession> openSession();
    void start(std::unique_ptr<X11TapSession> newSession);
    void work();
    bool isToldToStop(std::chrono::milliseconds longestWait) const;

    QObject mainThread; ///< drops what has not been delivered when it goes away
    Handler handler;
    std::unique_ptr<X11TapSession> session;
    int stopDescriptor;
    std::thread worker;
};

} // namespace tessaline
