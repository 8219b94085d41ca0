#include "settings/SourceMode.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString rawValue(SourceMode mode) {
    switch (mode) {
    case SourceMode::file:
        return u"file"_s;
    case SourceMode::clipboard:
        return u"clipboard"_s;
    }
    Q_UNREACHABLE();
}

std::optional<SourceMode> sourceModeFromRawValue(QStringView raw) {
    for (const SourceMode mode : allSourceModes)
        if (raw == rawValue(mode)) return mode;
    return std::nullopt;
}

} // namespace tessaline
