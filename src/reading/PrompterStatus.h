#pragma once

#include "settings/ScrollRate.h"
#include "settings/SourceType.h"

#include <QString>

namespace tessaline {

/// What the prompter shows and does at one moment, for whoever watches it from outside.
struct PrompterStatus {
    QString version; ///< the program's, such as "1.2.3"
    bool visible = false;
    bool collapsed = false;
    SourceType source = SourceType::clipboard;
    qint64 words = 0;                   ///< of the whole script
    QString time;                       ///< that the whole script takes, as the strip shows it
    double scrollPosition = 0.0;        ///< points from the script's top
    double maximumScrollPosition = 0.0; ///< the furthest that there is
    double speed = 0.0;                 ///< 0 to 5
    ScrollRate rate = ScrollRate::medium;
    bool autoScroll = false;
    int frameRate = 0; ///< frames that auto-scroll made in the last second

    bool operator==(const PrompterStatus&) const = default;

    /// Calls `visit` with the name and the value of every field of a status, in the order in which
    /// they are told.
    template <typename Status, typename Visitor>
    static void visitFields(Status& status, Visitor visit) {
        visit("version", status.version);
        visit("visible", status.visible);
        visit("collapsed", status.collapsed);
        visit("source", status.source);
        visit("words", status.words);
        visit("time", status.time);
        visit("scrollPosition", status.scrollPosition);
        visit("maximumScrollPosition", status.maximumScrollPosition);
        visit("speed", status.speed);
        visit("rate", status.rate);
        visit("autoScroll", status.autoScroll);
        visit("frameRate", status.frameRate);
    }
};

} // namespace tessaline
