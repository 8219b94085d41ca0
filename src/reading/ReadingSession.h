#pragma once

#include "reading/ContentRenderer.h"
#include "reading/FrameRate.h"
#include "reading/Pace.h"
#include "reading/ReadingView.h"
#include "reading/Script.h"
#include "render/engines/DisplayLinkScrollerDelegate.h"

#include <memory>
#include <optional>
#include <vector>

namespace tessaline {

class PositionSource;
struct PersistedSettings;
struct ReadingOptions;

/// A text being read: what is read, where the reader is, and how fast they go on. Views show it;
/// hands and the position source move it, by `moveTo` and `moveBy` and in no other way. Distances
/// are points of the view that was added first; any others follow.
class ReadingSession final : public DisplayLinkScrollerDelegate {
public:
    /// Speed, rate and whether the source may move the text are asked of the settings, the user's
    /// way of reading of the options. Both are borrowed.
    ReadingSession(const PersistedSettings& settings, const ReadingOptions& options);
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

    /// Takes the pace over from the settings.
    void updatePace();

    /// How many times the source moved the text in the last second.
    int framesPerSecond() const;

    void scrollerDidProduceScroll(DisplayLinkScroller& scroller, double deltaY) override;

    /// Shows this session in a view from now on, or no longer. Borrowed.
    void addView(ReadingView& view);
    void removeView(ReadingView& view);

    /// A view tells where it has the reader now.
    void reached(const ReadingView& view, const ReadingPlace& place);

private:
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
    std::unique_ptr<PositionSource> source;
};

} // namespace tessaline
