#pragma once

#include "platform/linux/desktop/portal/ShortcutsPortal.h"

#include <utility>
#include <vector>

namespace tessaline {

/// A portal that keeps questions open until the test answers them.
class FakeShortcutsPortal final : public ShortcutsPortal {
public:
    using Outcome = Answer::Outcome;

    void listen(Events listener) override { events = std::move(listener); }

    void open(Answered answered) override {
        ++opened;
        waiting = std::move(answered);
    }

    void bind(const std::vector<Shortcut>& shortcuts, Answered answered) override {
        ++asked;
        wanted = shortcuts;
        waiting = std::move(answered);
    }

    void answer(Outcome outcome, const std::vector<Bound>& bound = {}) {
        if (const auto answered = std::exchange(waiting, nullptr)) answered({outcome, bound});
    }

    Events events;
    Answered waiting;
    std::vector<Shortcut> wanted;
    int opened = 0;
    int asked = 0;
};

} // namespace tessaline
