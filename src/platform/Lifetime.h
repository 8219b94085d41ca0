#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace tessaline {

/// A member of whoever hands out callbacks: they do nothing once it is gone.
///
///     queue.post(lifetime.guard([this] { show(); }));
///
/// Guarded calls are made, and the owner destroyed, on one thread. Copying them and asking whether
/// they still do anything is allowed on any. For a QObject that somebody else owns, there is
/// QPointer.
class Lifetime {
    using Flag = std::shared_ptr<const std::atomic<bool>>;

public:
    template <typename Action>
    class Guarded {
    public:
        Guarded(Flag ownerLives, Action guarded)
            : lives(std::move(ownerLives)), action(std::move(guarded)) {}

        /// Calls the action, or gives what its result is by default.
        template <typename... Arguments>
        auto operator()(Arguments&&... arguments) const
            -> std::invoke_result_t<const Action&, Arguments...> {
            using Result = std::invoke_result_t<const Action&, Arguments...>;
            if (*lives) return std::invoke(action, std::forward<Arguments>(arguments)...);
            return Result();
        }

        /// False once a call does nothing, which spares the work for it.
        bool isAlive() const { return *lives; }

    private:
        Flag lives;
        Action action;
    };

    Lifetime() : lives(std::make_shared<std::atomic<bool>>(true)) {}
    ~Lifetime() { *lives = false; }
    Lifetime(const Lifetime&) = delete;
    Lifetime& operator=(const Lifetime&) = delete;

    /// The action, for as long as this lives.
    template <typename Action>
    Guarded<Action> guard(Action action) const {
        return {lives, std::move(action)};
    }

private:
    std::shared_ptr<std::atomic<bool>> lives;
};

} // namespace tessaline
