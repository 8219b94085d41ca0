#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace tessaline {

/// The system's clipboard.
class Pasteboard {
public:
    /// What to say in one line where there is no text.
    static QString noTextProblem() { return QStringLiteral("the clipboard holds no text"); }

    virtual ~Pasteboard() = default;

    /// Looks what the clipboard holds now, and calls back once `plainText` tells: at once, or later
    /// where another program has to be asked. Never waits for that program here. `problem` says in
    /// one line why there is no text, and is empty when there is one.
    virtual void refresh(std::function<void(const QString& problem)> done) = 0;

    /// The plain text that the last refresh found, or none.
    virtual std::optional<QString> plainText() const = 0;
};

} // namespace tessaline
