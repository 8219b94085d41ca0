#pragma once

#include "settings/ReadingChoices.h"
#include "settings/ScrollRate.h"
#include "settings/SourceType.h"

#include <QString>
#include <QStringList>
#include <QTime>

#include <optional>

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

    PaceMode pace = PaceMode::speed;
    double wordsPerMinute = 0.0; ///< as the text moves now
    double wordsRead = 0.0;      ///< spoken ones above the eye line, with the fraction of its line
    std::optional<double> secondsLeft; ///< none: at this pace the text never ends
    double secondsElapsed = 0.0;

    // What the reading options say, in the forms of the commands that change them.
    double wantedWordsPerMinute = 0.0;
    QString finish;              ///< "12m" or "15:30"
    bool finishTomorrow = false; ///< that time has passed today
    QString eyeLine;             ///< "second", or percent of the text's height
    ReadingGuide guide = ReadingGuide::none;
    int guideLines = 1;
    int countdown = 0; ///< seconds
    ScriptEnd atEnd = ScriptEnd::stand;
    bool glide = false;
    Mirroring mirror = Mirroring::none;
    int opacity = 100;      ///< of the ground, in percent
    int opacityShown = 100; ///< that there is: opaque where nothing shows translucency
    bool clickThrough = false;
    bool clickedThrough = false; ///< which there is, unless the system cannot do that
    QString font;                ///< "default", or the family's name
    QString fontShown;           ///< that there is: the default where that family is missing
    double lineSpacing = 1.0;
    int distance = 0;      ///< centimetres
    double fontSize = 0.0; ///< of body text, in points
    QString suggestion;    ///< which size would be right, and why
    bool mediaKeys = false;

    bool black = false; ///< the text is blacked out
    bool keys = false;  ///< the sheet of keys is shown

    int remotePages = 0;                         ///< of the page for phones that are connected
    QString remote = QString::fromLatin1("off"); ///< whether that is served: "off", "on", "failed"
    QString remoteAddress;                       ///< where it is, without its secret
    QString remoteProblem;                       ///< why it cannot be served

    QString file;       ///< the script's path, if it was opened from a file
    QString continueAt; ///< where it can be gone on with, if anywhere
    QStringList latest; ///< paths of the scripts that were opened last

    QString platform; ///< what shows the windows: "x11", "xwayland", "wayland" or "macos"

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
        visit("pace", status.pace);
        visit("wordsPerMinute", status.wordsPerMinute);
        visit("wordsRead", status.wordsRead);
        visit("secondsLeft", status.secondsLeft);
        visit("secondsElapsed", status.secondsElapsed);
        visit("wantedWordsPerMinute", status.wantedWordsPerMinute);
        visit("finish", status.finish);
        visit("finishTomorrow", status.finishTomorrow);
        visit("eyeLine", status.eyeLine);
        visit("guide", status.guide);
        visit("guideLines", status.guideLines);
        visit("countdown", status.countdown);
        visit("atEnd", status.atEnd);
        visit("glide", status.glide);
        visit("mirror", status.mirror);
        visit("opacity", status.opacity);
        visit("opacityShown", status.opacityShown);
        visit("clickThrough", status.clickThrough);
        visit("clickedThrough", status.clickedThrough);
        visit("font", status.font);
        visit("fontShown", status.fontShown);
        visit("lineSpacing", status.lineSpacing);
        visit("distance", status.distance);
        visit("fontSize", status.fontSize);
        visit("suggestion", status.suggestion);
        visit("mediaKeys", status.mediaKeys);
        visit("remote", status.remote);
        visit("remoteAddress", status.remoteAddress);
        visit("remoteProblem", status.remoteProblem);
        visit("remotePages", status.remotePages);
        visit("black", status.black);
        visit("keys", status.keys);
        visit("file", status.file);
        visit("continueAt", status.continueAt);
        visit("latest", status.latest);
        visit("platform", status.platform);
    }
};

struct ReadingOptions;

/// Tells the reading options in a status; `now` is the time on the clock.
void tellOptions(const ReadingOptions& options, QTime now, PrompterStatus& status);

} // namespace tessaline
