#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace tessaline {

/// The legacy switch between a note file and the clipboard; held in memory only.
enum class SourceMode { file, clipboard };

/// Every mode, in declaration order.
inline constexpr std::array allSourceModes{SourceMode::file, SourceMode::clipboard};

/// The mode's raw string.
QString rawValue(SourceMode mode);

/// The mode with exactly this raw value (case-sensitive), or none.
std::optional<SourceMode> sourceModeFromRawValue(QStringView raw);

} // namespace tessaline
