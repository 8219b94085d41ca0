#pragma once

#include "app/opening/ScriptOpening.h"
#include "app/remote/RemoteRequest.h"
#include "platform/Lifetime.h"

#include <QString>

#include <functional>

namespace tessaline {

class AppDelegate;
class MainQueue;
class TaskRunner;

/// Carries out what a later command line asks the running program for.
class RemoteCommands {
public:
    using Reply = std::function<void(const RemoteAnswer& answer)>;

    /// Borrows everything. The runner reads files: nothing else waits behind one that hangs.
    RemoteCommands(AppDelegate& delegate, TaskRunner& taskRunner, MainQueue& mainQueue);

    /// Replies once it is done: at once or, where a file or the clipboard has to be read, later.
    /// Not at all when this is gone by then.
    void carryOut(const RemoteRequest& request, const Reply& reply);

private:
    void openFile(const OpenRequest& request, const Reply& reply);
    ScriptOpening::Reading readingOf(const OpenRequest& request) const;
    QString show(const OpenRequest& request, const ReadText& read);

    AppDelegate& delegate;
    TaskRunner& taskRunner;
    MainQueue& mainQueue;
    Lifetime lifetime;
};

} // namespace tessaline
