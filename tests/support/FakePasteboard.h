#pragma once

#include "platform/Pasteboard.h"

#include <utility>

namespace tessaline {

/// Clipboard that holds what the test puts into it. Its owner answers at once, or when the test
/// says so.
class FakePasteboard final : public Pasteboard {
public:
    void refresh(std::function<void(const QString& problem)> done) override {
        asked = std::move(done);
        if (answersAtOnce) answer();
    }
    std::optional<QString> plainText() const override { return text; }

    /// What the owner says now.
    void answer() {
        const bool hasText = text && !text->isEmpty();
        std::exchange(asked, nullptr)(hasText ? QString() : problem);
    }

    std::optional<QString> text;
    QString problem = noTextProblem();
    bool answersAtOnce = true;

private:
    std::function<void(const QString& problem)> asked;
};

} // namespace tessaline
