#pragma once

#include "settings/JsonValue.h"
#include "settings/ScrollRate.h"
#include "settings/SourceMode.h"
#include "settings/SourceType.h"

namespace tessaline {

/// The JSON text that stands for the value: its raw string.
JsonValue encode(SourceType source);
JsonValue encode(SourceMode mode);
JsonValue encode(ScrollRate rate);

/// Takes over the value that a JSON text stands for. False, and no change, when it stands for none.
bool decode(const JsonValue& value, SourceType& source);
bool decode(const JsonValue& value, SourceMode& mode);
bool decode(const JsonValue& value, ScrollRate& rate);

} // namespace tessaline
