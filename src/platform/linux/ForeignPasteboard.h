#pragma once

#include "platform/Lifetime.h"
#include "platform/Pasteboard.h"

namespace tessaline {

class MainQueue;
class TaskRunner;

/// The clipboard of a display server, which is with the program that filled it. Qt would wait for
/// that program on the main thread, five seconds if it hangs; here the prompter goes on meanwhile.
class ForeignPasteboard final : public Pasteboard {
public:
    /// Asks the program that filled the clipboard for its text, and waits for the answer; a problem
    /// in one line where there is none. Any thread.
    using Read = std::function<std::optional<QString>(QString* problem)>;

    /// Borrows queue and tasks. The tasks wait for other programs.
    ForeignPasteboard(MainQueue& queue, TaskRunner& tasks, Read read);

    void refresh(std::function<void(const QString& problem)> done) override;
    std::optional<QString> plainText() const override { return text; }

private:
    MainQueue& queue;
    TaskRunner& tasks;
    Read read;
    std::optional<QString> text;
    Lifetime lifetime;
};

} // namespace tessaline
