#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace tessaline {

/// The content source that the prompter shows text from.
enum class SourceType { obsidian, appleNotes, clipboard };

/// Every source, in declaration order.
inline constexpr std::array allSourceTypes{SourceType::obsidian, SourceType::appleNotes,
                                           SourceType::clipboard};

/// The sources offered to the user, in the order of menus and of cycling. Apple Notes is built but
/// not offered.
inline constexpr std::array availableSources{SourceType::obsidian, SourceType::clipboard};

/// The string that stands for the source in the configuration file and in usage events.
QString rawValue(SourceType source);

/// The source with exactly this raw value (case-sensitive), or none.
std::optional<SourceType> sourceTypeFromRawValue(QStringView raw);

/// The name shown to the user.
QString displayName(SourceType source);

} // namespace tessaline
