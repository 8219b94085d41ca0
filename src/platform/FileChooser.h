#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace tessaline {

/// Lets the user pick a file.
class FileChooser {
public:
    struct Question {
        QString title;
        QString kind;         ///< what is looked for, such as "Scripts"
        QStringList patterns; ///< of the names that such files usually have, such as "*.md"
        QString startFolder;  ///< where the panel opens; empty: where the system likes
    };

    virtual ~FileChooser() = default;

    /// Shows a panel and returns at once; nothing stands still meanwhile. `picked` is called with
    /// the path from the root once the user has picked a file and confirmed, and never otherwise.
    /// A panel that is still open comes to the front in place of another one.
    virtual void chooseFile(const Question& question,
                            std::function<void(const QString& path)> picked) = 0;
};

} // namespace tessaline
