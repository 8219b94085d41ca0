#pragma once

#include <QString>

#include <optional>

namespace tessaline {

/// Lets the user pick a folder.
class FolderChooser {
public:
    struct Question {
        QString title;
        QString message;
        QString startFolder; ///< where the panel opens
    };

    virtual ~FolderChooser() = default;

    /// Shows a modal panel and waits for the answer: the one folder that the user picked and
    /// confirmed, or none.
    virtual std::optional<QString> chooseFolder(const Question& question) = 0;
};

} // namespace tessaline
