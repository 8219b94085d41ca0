#pragma once

#include "platform/Lifetime.h"
#include "platform/Pasteboard.h"

namespace tessaline {

class MainQueue;
class TaskRunner;

/// The clipboard of the X server, which is with the program that filled it. Qt would wait for that
/// program on the main thread, five seconds if it hangs; here the prompter goes on meanwhile.
class X11Pasteboard final : public Pasteboard {
public:
    /// Borrows both. The tasks wait for other programs.
    X11Pasteboard(MainQueue& queue, TaskRunner& tasks);

    void refresh(std::function<void(const QString& problem)> done) override;
    std::optional<QString> plainText() const override { return text; }

private:
    MainQueue& queue;
    TaskRunner& tasks;
    std::optional<QString> text;
    Lifetime lifetime;
};

} // namespace tessaline
