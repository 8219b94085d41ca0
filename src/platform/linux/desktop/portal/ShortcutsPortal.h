#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace tessaline {

/// The desktop's service that gives programs keys for which it has asked the user. All answers come
/// later, on the main thread, and none once this is gone.
class ShortcutsPortal {
public:
    /// What a key may be given to.
    struct Shortcut {
        QString id;
        QString description;
        QString preferredTrigger; ///< as the portal writes keys; empty: none
    };

    /// What the desktop lists.
    struct Bound {
        QString id;
        QString trigger; ///< the key in the desktop's words; empty while it has none

        bool operator==(const Bound&) const = default;
    };

    struct Answer {
        enum class Outcome {
            done,
            refused,    ///< by the user or the desktop
            unavailable ///< nobody is there to ask
        };

        Outcome outcome = Outcome::unavailable;
        std::vector<Bound> bound{}; ///< all that is listed now
    };

    using Answered = std::function<void(const Answer& answer)>;

    /// What comes unasked.
    struct Events {
        std::function<void(const QString& id)> pressed;
        std::function<void(const std::vector<Bound>& bound)> changed;
        std::function<void()> closed; ///< the desktop ended the session
        std::function<void()> gone;   ///< the service went away, and the session with it
        std::function<void()> came;   ///< the service is there, maybe again
    };

    virtual ~ShortcutsPortal() = default;

    /// Has these called from now on.
    virtual void listen(Events events) = 0;

    /// Opens a session in place of any other, and tells what is bound in it already.
    virtual void open(Answered answered) = 0;

    /// Asks for keys, which a session does once: the desktop may ask the user, and takes its time.
    virtual void bind(const std::vector<Shortcut>& shortcuts, Answered answered) = 0;
};

} // namespace tessaline
