#pragma once

#include "reading/Clocks.h"
#include "reading/ContentRenderer.h"
#include "reading/FrameRate.h"
#include "reading/Pace.h"
#include "reading/ReadingView.h"
#include "reading/Script.h"
#include "reading/Stopwatch.h"
#include "reading/pace/ReadingProgress.h"
#include "reading/pace/ReadingPromise.h"
#include "reading/pace/SpokenWordIndex.h"
#include "render/engines/DisplayLinkScrollerDelegate.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tessaline {

class PositionSource;
struct PrompterStatus;
struct PersistedSettings;
struct ReadingOptions;

/// A text being read: what is read, where the reader is, and how fast they go on. Views show it;
/// hands and the position source move it, by `moveTo` and `moveBy` and in no other way. Distances
/// are points of the view that was added first; any others follow.
class ReadingSession final : public DisplayLinkScrollerDelegate {
public:
    /// Speed, rate and whether the source may move the text are asked of the settings, the user's
    /// way of reading of the options. Both are borrowed.
    ReadingSession(const PersistedSettings& settings, const ReadingOptions& options,
                   Clocks clocks = {});
    ~ReadingSession() override;

    /// Replaces the text. The reader's place stays if the new text has it too.
    void setContent(RenderedContent content);

    const std::shared_ptr<const Script>& script() const { return currentScript; }
    qsizetype words() const { return wordCount; }

    ReadingPlace place() const { return readersPlace; }

    /// Moves the reader to the line of an offset, in UTF-16 units.
    void moveTo(qsizetype offset);

    /// Moves the reader on by so many points; negative is back.
    void moveBy(double points);

    Pace pace() const;

    /// How long the whole text takes, as of the last update: for the views to ask for once the
    /// text, its layout or the pace is another.
    double readingSeconds() const { return seconds; }
    void updateReadingTime();

    /// Replaces what moves the reader; starts it if the settings say so.
    void setSource(std::unique_ptr<PositionSource> newSource);
    void start();
    void stop();

    /// While the session is held, the source does not move the text. Letting it go starts the
    /// source if the settings say so.
    void setHeld(bool hold);
    bool isHeld() const { return held; }

    void updatePace(); ///< takes it over from the settings and the options

    /// The options promise something else from now on.
    void promiseAnew();

    /// How many times the source moved the text in the last second.
    int framesPerSecond() const;

    /// Moves the reader on by so many points, as the source does; tells when the end is reached.
    void advance(double points);

    /// Moves the reader back to the beginning, for another reading.
    void beginAgain();

    /// Called when the source has reached the end.
    std::function<void()> onEnd;

    /// Whether the reader is at the furthest place there is.
    bool isAtEnd() const;

    /// The middle of the line that is being read, in points from the document's top.
    double readerPosition() const;
    double lastReaderPosition() const; ///< the furthest

    /// Where a paragraph begins, in the same points.
    double topOf(std::size_t paragraph) const;

    /// How much has been read, or none where there is no view.
    std::optional<ReadingProgress> progress() const;

    /// How long the rest takes at the present pace. None where it never ends.
    std::optional<double> secondsLeft() const;

    double secondsLate() const; ///< how much too late the promised end will be

    /// Tells this in a status, and how much has been read how fast.
    void tellProgress(PrompterStatus& status) const;

    const ReadingPromise& currentPromise() const { return promise; }

    /// Counts the changes of lines, by which what was worked out of them is known to be old.
    int layoutVersion() const { return linesVersion; }

    /// A view has set its lines anew.
    void linesChanged() { ++linesVersion; }

    void scrollerDidProduceScroll(DisplayLinkScroller& scroller, double deltaY) override;

    /// Shows this session in a view from now on, or no longer. Borrowed.
    void addView(ReadingView& view);
    void removeView(ReadingView& view);

    /// A view tells where it has the reader now.
    void reached(const ReadingView& view, const ReadingPlace& place);

private:
    bool isOn() const;
    double wordsRead() const;
    double wordsLeft() const;
    double wordsPerMinute() const;
    void beginAnew();
    std::optional<ReadingPlace> placeAfter(const ScriptChange& change,
                                           std::size_t countBefore) const;

    const PersistedSettings& settings;
    const ReadingOptions& options;
    std::shared_ptr<const Script> currentScript;
    qsizetype wordCount = 0;
    ReadingPlace readersPlace;
    double seconds = 0.0;
    bool held = false;
    FrameRate frames;
    std::vector<ReadingView*> views;
    SpokenWordIndex spokenWords;
    ReadingPromise promise;
    Stopwatch elapsed;
    int linesVersion = 0;
    const Clocks clocks;
    std::unique_ptr<PositionSource> source;
};

} // namespace tessaline
