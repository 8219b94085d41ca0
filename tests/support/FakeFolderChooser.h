#pragma once

#include "platform/FolderChooser.h"

#include <functional>
#include <vector>

namespace tessaline {

/// Answers at once with what the test decided; keeps the questions.
class FakeFolderChooser final : public FolderChooser {
public:
    std::optional<QString> chooseFolder(const Question& question) override {
        questions.push_back(question);
        if (whileShown) whileShown();
        return answer;
    }

    std::optional<QString> answer;
    std::function<void()> whileShown; ///< what happens before the user answers
    std::vector<Question> questions;
};

} // namespace tessaline
