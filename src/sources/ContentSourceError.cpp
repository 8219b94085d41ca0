#include "sources/ContentSourceError.h"

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

ContentSourceError::ContentSourceError(Kind kind, const QString& about)
    : errorKind(kind), detail(about) {}

ContentSourceError ContentSourceError::fileNotFound(const QString& path) {
    return ContentSourceError(Kind::fileNotFound, path);
}

ContentSourceError ContentSourceError::fileNotReadable(const QString& path) {
    return ContentSourceError(Kind::fileNotReadable, path);
}

ContentSourceError ContentSourceError::scriptError(const QString& message) {
    return ContentSourceError(Kind::scriptError, message);
}

ContentSourceError ContentSourceError::noContent() {
    return ContentSourceError(Kind::noContent);
}

ContentSourceError ContentSourceError::permissionDenied() {
    return ContentSourceError(Kind::permissionDenied);
}

ContentSourceError ContentSourceError::notConfigured() {
    return ContentSourceError(Kind::notConfigured);
}

QString ContentSourceError::errorDescription() const {
    switch (errorKind) {
    case Kind::fileNotFound:
        return "File not found: "_L1 + detail;
    case Kind::fileNotReadable:
        return "Cannot read file: "_L1 + detail;
    case Kind::scriptError:
        return "Script error: "_L1 + detail;
    case Kind::noContent:
        return u"No content available"_s;
    case Kind::permissionDenied:
        return u"Permission denied"_s;
    case Kind::notConfigured:
        return u"Source not configured"_s;
    }
    return {};
}

} // namespace tessaline
