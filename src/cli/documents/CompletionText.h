#pragma once

#include <QString>

#include <span>

namespace tessaline {

/// The words with a space between each two.
QString joinedWords(std::span<const QStringView> words);

/// The first sentence of a help text on one line, without its full stop.
QString firstSentence(QStringView help);

} // namespace tessaline
