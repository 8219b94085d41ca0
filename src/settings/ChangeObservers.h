#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessaline {

/// Those who hear of changes of some `Values`, with the values from before.
template <typename Values>
class ChangeObservers {
public:
    using Observer = std::function<void(const Values& before)>;
    /// Keeps an observer registered for as long as it lives.
    using Observation = std::shared_ptr<const Observer>;

    /// Observers are called in the order in which they registered. They may register and drop
    /// others: a new one hears of the next change, a dropped one of none any more.
    [[nodiscard]] Observation add(Observer observer) {
        auto observation = std::make_shared<const Observer>(std::move(observer));
        observers.push_back(observation);
        return observation;
    }

    void announce(const Values& before) {
        std::erase_if(observers, [](const auto& observer) { return observer.expired(); });
        // A copy: who is called may register and drop others.
        for (const auto& observer : std::vector(observers))
            if (const auto living = observer.lock()) (*living)(before);
    }

private:
    std::vector<std::weak_ptr<const Observer>> observers;
};

} // namespace tessaline
