#include "settings/SourceType.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString rawValue(SourceType source) {
    switch (source) {
    case SourceType::obsidian:
        return u"obsidian"_s;
    case SourceType::appleNotes:
        return u"appleNotes"_s;
    case SourceType::clipboard:
        return u"clipboard"_s;
    }
    Q_UNREACHABLE();
}

std::optional<SourceType> sourceTypeFromRawValue(QStringView raw) {
    for (const SourceType source : allSourceTypes)
        if (raw == rawValue(source)) return source;
    return std::nullopt;
}

QString displayName(SourceType source) {
    switch (source) {
    case SourceType::obsidian:
        return u"Obsidian"_s;
    case SourceType::appleNotes:
        return u"Apple Notes"_s;
    case SourceType::clipboard:
        return u"Clipboard"_s;
    }
    Q_UNREACHABLE();
}

} // namespace tessaline
