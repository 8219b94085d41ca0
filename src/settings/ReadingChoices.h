#pragma once

#include "settings/JsonValue.h"

#include <QString>

#include <array>

namespace tessaline {

/// What decides how fast the text passes: the speed of auto-scroll, words a minute, or the moment
/// at which the end is to be reached.
enum class PaceMode { speed, words, finish };

/// What marks the line that is being read: nothing, a marker at both edges, or a light band.
enum class ReadingGuide { none, marker, band };

/// What happens when the end of a script is reached: the text stands, auto-scroll is switched off,
/// or the script begins again.
enum class ScriptEnd { stand, stop, goRound };

/// How the text is turned over, for whoever reads it in a mirror or on glass.
enum class Mirroring { none, horizontal, vertical, both };

/// A choice, and the string that stands for it in files, commands and usage events.
template <typename T>
struct Choice {
    T value;
    const char16_t* raw;
};

inline constexpr std::array paceModes{
    Choice<PaceMode>{PaceMode::speed, u"speed"},
    Choice<PaceMode>{PaceMode::words, u"words"},
    Choice<PaceMode>{PaceMode::finish, u"finish"},
};

inline constexpr std::array readingGuides{
    Choice<ReadingGuide>{ReadingGuide::none, u"none"},
    Choice<ReadingGuide>{ReadingGuide::marker, u"marker"},
    Choice<ReadingGuide>{ReadingGuide::band, u"band"},
};

inline constexpr std::array scriptEnds{
    Choice<ScriptEnd>{ScriptEnd::stand, u"stand"},
    Choice<ScriptEnd>{ScriptEnd::stop, u"stop"},
    Choice<ScriptEnd>{ScriptEnd::goRound, u"round"},
};

inline constexpr std::array mirrorings{
    Choice<Mirroring>{Mirroring::none, u"none"},
    Choice<Mirroring>{Mirroring::horizontal, u"horizontal"},
    Choice<Mirroring>{Mirroring::vertical, u"vertical"},
    Choice<Mirroring>{Mirroring::both, u"both"},
};

QString rawValue(PaceMode mode);
QString rawValue(ReadingGuide guide);
QString rawValue(ScriptEnd end);
QString rawValue(Mirroring mirroring);

/// The JSON text that stands for a choice.
JsonValue encode(PaceMode mode);
JsonValue encode(ReadingGuide guide);
JsonValue encode(ScriptEnd end);
JsonValue encode(Mirroring mirroring);

/// Takes over the choice that a JSON text stands for. False, and no change, when it stands for
/// none.
bool decode(const JsonValue& value, PaceMode& mode);
bool decode(const JsonValue& value, ReadingGuide& guide);
bool decode(const JsonValue& value, ScriptEnd& end);
bool decode(const JsonValue& value, Mirroring& mirroring);

} // namespace tessaline
