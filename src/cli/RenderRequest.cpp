#include "cli/RenderRequest.h"

namespace tessaline {

std::optional<RenderFormat> renderFormatNamed(QStringView name) {
    if (name == u"json") return RenderFormat::json;
    if (name == u"html") return RenderFormat::html;
    if (name == u"png") return RenderFormat::png;
    return std::nullopt;
}

} // namespace tessaline
