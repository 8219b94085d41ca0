#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace tessaline {

/// The one instance of `T` that the whole process shares. The application, which has what an
/// instance needs, holds one of these for as long as those things live; it says how to make the
/// instance, which is made when somebody first asks for it. One at a time for each `T`.
template <typename T>
class SharedInstance {
public:
    using Maker = std::function<std::unique_ptr<T>()>;

    explicit SharedInstance(Maker maker) {
        const std::scoped_lock guard(lock);
        make = std::move(maker);
    }

    /// Destroys the instance, if there is one. Nobody may use it by then.
    ~SharedInstance() {
        const std::scoped_lock guard(lock);
        make = nullptr;
        instance.reset();
    }

    SharedInstance(const SharedInstance&) = delete;
    SharedInstance& operator=(const SharedInstance&) = delete;

    /// The instance. The first call makes it and comes from the main thread; later ones from any.
    /// Ends the program when nobody said how to make one.
    static T& get() {
        const std::scoped_lock guard(lock);
        if (!instance && !make)
            qFatal("A shared instance is used outside of the application's run");
        if (!instance) instance = make();
        return *instance;
    }

private:
    static inline std::mutex lock;
    static inline Maker make;
    static inline std::unique_ptr<T> instance;
};

} // namespace tessaline
