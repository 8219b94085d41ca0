#include "remote/page/PageState.h"

#include "settings/JsonWriter.h"

#include <cmath>

namespace tessaline {

QByteArray messageOf(const PageState& state) {
    constexpr double fractionParts = 1000.0; // of no use to the eye beyond that
    QByteArray bytes;
    JsonWriter json(bytes, JsonWriter::Layout::compact);
    json.beginObject();
    json.key("moves");
    json.boolean(state.moves);
    json.key("seen");
    json.boolean(state.isSeen);
    json.key("black");
    json.boolean(state.isBlack);
    json.key("pace");
    json.string(rawValue(state.pace));
    json.key("paceText");
    json.string(state.paceText);
    json.key("secondsLeft");
    state.secondsLeft ? json.number(*state.secondsLeft) : json.null();
    json.key("script");
    json.number(double(state.scriptVersion));
    json.key("paragraphs");
    json.number(double(state.paragraphs));
    json.key("paragraph");
    json.number(double(state.paragraph));
    json.key("fraction");
    json.number(std::round(state.fraction * fractionParts) / fractionParts);
    json.endObject();
    return bytes;
}

} // namespace tessaline
