#pragma once

#include <QObject>

#include <functional>

namespace tessaline {

/// Answers those who ask the program to quit through the toolkit: the session manager at the end of
/// the session, or the Dock. The toolkit by itself would close every window first, as if the user
/// had. Install it as an event filter of the application.
class QuitRequests final : public QObject {
public:
    /// Calls `quit` for every request, in place of what the toolkit does.
    explicit QuitRequests(std::function<void()> quit);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::function<void()> quit;
};

} // namespace tessaline
