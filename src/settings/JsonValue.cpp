#include "settings/JsonValue.h"

#include <algorithm>

namespace tessaline {

const JsonValue* JsonValue::find(QStringView name) const {
    const auto* members = as<Object>();
    if (!members) return nullptr;
    const auto found =
        std::find_if(members->rbegin(), members->rend(),
                     [name](const JsonMember& member) { return member.name == name; });
    return found == members->rend() ? nullptr : &found->value;
}

} // namespace tessaline
