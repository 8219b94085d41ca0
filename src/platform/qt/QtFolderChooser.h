#pragma once

#include "platform/FolderChooser.h"

namespace tessaline {

/// Asks with Qt's own panel, since those of the desktops have no place for the message. Existing
/// folders only, one at a time; the panel creates, renames and deletes nothing. Needs a
/// QApplication.
class QtFolderChooser final : public FolderChooser {
public:
    std::optional<QString> chooseFolder(const Question& question) override;
};

} // namespace tessaline
