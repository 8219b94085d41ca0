#pragma once

#include "settings/ReadingChoices.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <optional>

namespace tessaline {

/// What a page shows of the prompter at one moment. A plain value.
struct PageState {
    bool moves = false;
    bool isSeen = false; ///< the prompter's window is shown
    bool isBlack = false;
    PaceMode pace = PaceMode::speed;
    QString paceText;                  ///< for people: "speed 2", "150 words a minute"
    std::optional<double> secondsLeft; ///< whole; none: it never ends
    qint64 scriptVersion = 0;
    qint64 paragraphs = 0;
    qint64 paragraph = 0;  ///< that is being read
    double fraction = 0.0; ///< of its height, from 0 to 1

    bool operator==(const PageState&) const = default;
};

/// The message that tells it.
QByteArray messageOf(const PageState& state);

} // namespace tessaline
