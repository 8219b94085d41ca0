#include "app/opening/PlaceMemory.h"

#include "app/ScriptIntake.h"
#include "platform/Platform.h"
#include "platform/TimerMaker.h"
#include "prompter/PrompterWindow.h"
#include "prompter/covers/NoticeBar.h"
#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"
#include "sources/SourceManager.h"
#include "sources/files/LatestScripts.h"
#include "sources/files/ScriptFile.h"

#include <cmath>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The offset of the line being read; 0 at the beginning.
qsizetype offsetRead(const ScriptView& view) {
    const ReadingPlace place = view.reading().place();
    if (std::isinf(place.fraction)) return 0;
    constexpr double withinTheLine = 0.5;
    const QRectF paragraph = view.paragraphRect(place.paragraph);
    return view.offsetAt(
        {paragraph.left(), paragraph.top() + place.fraction * paragraph.height() + withinTheLine});
}

QString shortened(const QString& heading) {
    constexpr qsizetype longest = 22;
    if (heading.size() <= longest) return heading;
    const bool splitsCharacter = heading[longest - 1].isLowSurrogate();
    return heading.first(splitsCharacter ? longest - 2 : longest - 1) + u'…';
}

/// The heading that an offset stands under, shortened, or its share of the text.
QString nameOfPlace(const Script& script, qsizetype offset) {
    for (std::size_t i = script.paragraphOf(offset) + 1; i-- > 0;) {
        if (script.headingLevel(i) == 0) continue;
        const auto& paragraph = script.paragraphs[i];
        const QString heading =
            script.text(paragraph.start, paragraph.start + paragraph.length).simplified();
        if (heading.isEmpty()) break;
        return u"“%1”"_s.arg(shortened(heading));
    }
    constexpr double percent = 100.0;
    return u"%1 %"_s.arg(std::lround(percent * double(offset) / double(script.length())));
}

} // namespace

PlaceMemory::PlaceMemory(LatestScripts& latestScripts, const ScriptIntake& scriptIntake,
                         PrompterWindow& prompterWindow, const Platform& system)
    : latest(latestScripts), intake(scriptIntake), prompter(prompterWindow), platform(system) {
    // It comes before another text is shown in place of the one that is being read.
    textObserver = platform.notifications->observe(
        SourceManager::contentDidUpdateNotification(),
        lifetime.guard([this](const Notification&) { remember(); }));
    QObject::connect(&prompter, &PrompterWindow::textShown, &prompter,
                     lifetime.guard([this](const QString& text) { shown(text); }));
}

PlaceMemory::~PlaceMemory() = default;

void PlaceMemory::expect(const QString& path, const QString& text, const QString& remark) {
    expected = FileText{path, text, remark};
}

QString PlaceMemory::file() const {
    if (expected) return expected->path;
    return current ? current->path : QString();
}

quint32 PlaceMemory::hashOfCurrent() {
    if (!current->hash) current->hash = hashOf(current->text);
    return *current->hash;
}

void PlaceMemory::shown(const QString& text) {
    const bool isFirst = !std::exchange(hasStarted, true);
    if (expected && expected->text == text) {
        const bool isAnother = !current || current->path != expected->path;
        current = std::exchange(expected, std::nullopt);
        arrive(isAnother);
    } else if (current && current->text == text) {
        return; // with other looks
    } else if (current && intake.followedPath() == current->path) {
        current->text = text;
        current->hash.reset();
    } else if (current) {
        drop();
    } else if (isFirst && !expected) {
        recogniseAtStart(text);
    }
}

void PlaceMemory::arrive(bool isAnotherFile) {
    place.reset();
    title.clear();
    if (isAnotherFile) prompter.textView().scrollTo(0.0);
    remembering = platform.timers->every(TimerMaker::Interval(interval), [this] { remember(); });
    if (offsetRead(prompter.textView()) == 0) offerToContinue();
}

void PlaceMemory::offerToContinue() {
    const LatestScript* known = latest.find(current->path);
    if (!known || known->place <= 0.0) return;
    const Script& script = prompter.textView().script();
    place = placeIn(*known, hashOfCurrent(), script.length());
    if (!place) return;
    title = u"Continue at "_s + nameOfPlace(script, *place);
    const QString remark =
        current->remark.isEmpty() ? u"Opened "_s + briefFileName(current->path) : current->remark;
    prompter.notices().offer(remark, title, lifetime.guard([this] { continueReading(); }));
}

/// What the program shows when it starts may be what it showed at its end.
void PlaceMemory::recogniseAtStart(const QString& text) {
    if (latest.all().empty()) return;
    const LatestScript& last = latest.all().front();
    if (last.place <= 0.0 || last.hash != double(hashOf(text))) return;
    current = FileText{last.path, text};
    arrive(true);
}

void PlaceMemory::drop() {
    current.reset();
    place.reset();
    title.clear();
    remembering.reset();
}

void PlaceMemory::remember() {
    if (!current || !latest.find(current->path)) return;
    const ScriptView& view = prompter.textView();
    const qsizetype offset = view.reading().isAtEnd() ? 0 : offsetRead(view);
    const bool onlyLooks = place ? view.scrollPosition() < view.height() : false;
    if (onlyLooks || (offset == 0 && !view.reading().isAtEnd())) return;
    latest.update({.path = current->path,
                   .hash = double(hashOfCurrent()),
                   .length = double(view.script().length()),
                   .place = double(offset)});
}

bool PlaceMemory::canContinue() const {
    const ScriptView& view = prompter.textView();
    return place && *place < view.script().length() &&
           view.positionOf(*place) > view.scrollPosition() + 1.0;
}

bool PlaceMemory::continueReading() {
    if (!canContinue()) return false;
    prompter.notices().dismiss();
    prompter.textView().jumps().toOffset(*place);
    place.reset();
    title.clear();
    return true;
}

} // namespace tessaline
