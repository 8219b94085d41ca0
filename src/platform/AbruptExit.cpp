#include "platform/AbruptExit.h"

#include <cstdlib>
#include <utility>

namespace tessaline {

namespace {

/// Never destroyed, as it has to outlive every static object. Empty: nothing to save.
std::function<void()>& wordsToSay() {
    static auto* const words = new std::function<void()>;
    return *words;
}

void saveAndEnd() {
    // Once only, also if saving should fail in a way that exits again.
    const auto words = std::exchange(wordsToSay(), nullptr);
    if (!words) return;
    words();
    std::_Exit(EXIT_FAILURE);
}

} // namespace

AbruptExit::AbruptExit(std::function<void()> lastWords) {
    wordsToSay() = std::move(lastWords);
    // The last to be registered is the first to be called: nothing that exists by now has been
    // destroyed then.
    std::atexit(&saveAndEnd);
}

AbruptExit::~AbruptExit() {
    wordsToSay() = nullptr;
}

} // namespace tessaline
