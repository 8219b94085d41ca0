#pragma once

#include "platform/FileChooser.h"

#include <QPointer>

class QFileDialog;

namespace tessaline {

/// Asks with the panel that Qt finds on the desktop, which on macOS is the system's, or with its
/// own. Files on this machine only. Needs a QApplication.
class QtFileChooser final : public FileChooser {
public:
    ~QtFileChooser() override;

    void chooseFile(const Question& question,
                    std::function<void(const QString& path)> picked) override;

private:
    QPointer<QFileDialog> panel; ///< while it is open
};

} // namespace tessaline
