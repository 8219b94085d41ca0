#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>

namespace tessaline {

/// What a script can be rendered to.
enum class RenderFormat : std::uint8_t { json, html, png };

/// The format that a command line calls by this name; none for an unknown name.
std::optional<RenderFormat> renderFormatNamed(QStringView name);

} // namespace tessaline
