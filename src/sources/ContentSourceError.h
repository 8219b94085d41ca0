#pragma once

#include <QString>

namespace tessaline {

/// Why a source has no text to give.
class ContentSourceError {
public:
    enum class Kind {
        fileNotFound,
        fileNotReadable,
        scriptError,
        noContent,
        permissionDenied,
        notConfigured
    };

    static ContentSourceError fileNotFound(const QString& path);
    static ContentSourceError fileNotReadable(const QString& path);
    static ContentSourceError scriptError(const QString& message);
    static ContentSourceError noContent();
    static ContentSourceError permissionDenied();
    static ContentSourceError notConfigured();

    Kind kind() const { return errorKind; }

    /// One line for the user.
    QString errorDescription() const;

    bool operator==(const ContentSourceError&) const = default;

private:
    explicit ContentSourceError(Kind kind, const QString& about = {});

    Kind errorKind;
    QString detail; ///< the path or the message, where the kind has one
};

} // namespace tessaline
