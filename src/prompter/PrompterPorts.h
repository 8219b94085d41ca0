#pragma once

namespace tessaline {

class DisplayLinkMaker;
class MainQueue;
class Screens;
class TaskRunner;
class TimerMaker;
class WindowTraits;

/// What the prompter needs of the platform. All of it must outlive the window.
struct PrompterPorts {
    MainQueue& mainQueue;
    TaskRunner& tasks;
    TimerMaker& timers;
    DisplayLinkMaker& displayLinks;
    const Screens& screens;
    WindowTraits& windowTraits;
};

} // namespace tessaline
