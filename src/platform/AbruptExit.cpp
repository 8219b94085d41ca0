#include "platform/AbruptExit.h"

#include <cstdlib>
#include <utility>

namespace tessaline {

namespace {

/// Never destroyed, as it has to outlive every static object. Empty: nothing to save.
std::function<void()>& saving() {
    static auto* const action = new std::function<void()>;
    return *action;
}

void saveAndEnd() {
    // Once only, also if saving should fail in a way that exits again.
    const auto save = std::exchange(saving(), nullptr);
    if (!save) return;
    save();
    std::_Exit(EXIT_FAILURE);
}

} // namespace

AbruptExit::AbruptExit(std::function<void()> save) {
    saving() = std::move(save);
    // The last to be registered is the first to be called: nothing that exists by now has been
    // destroyed then.
    std::atexit(&saveAndEnd);
}

AbruptExit::~AbruptExit() {
    saving() = nullptr;
}

} // namespace tessaline
