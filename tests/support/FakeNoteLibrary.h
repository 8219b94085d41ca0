#pragma once

#include "sources/NoteLibrary.h"

#include <utility>

namespace tessaline {

/// Notes whose listing the test answers.
class FakeNoteLibrary final : public NoteLibrary {
public:
    void listNotes(std::function<void(const Answer&)> completion) override {
        ++requests;
        pending = std::move(completion);
    }

    void openAutomationPreferences() override { ++preferencesOpened; }

    /// Answers the last request.
    void answer(const Answer& notes) { std::exchange(pending, nullptr)(notes); }

    int requests = 0;
    int preferencesOpened = 0;

private:
    std::function<void(const Answer&)> pending;
};

} // namespace tessaline
