#pragma once

#include "platform/FileChooser.h"

#include <utility>
#include <vector>

namespace tessaline {

/// Keeps the questions; the test picks what the user does.
class FakeFileChooser final : public FileChooser {
public:
    void chooseFile(const Question& question,
                    std::function<void(const QString& path)> picked) override {
        questions.push_back(question);
        pick = std::move(picked);
    }

    std::vector<Question> questions;
    std::function<void(const QString& path)> pick; ///< for the last question
};

} // namespace tessaline
