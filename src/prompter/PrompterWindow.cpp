#include "prompter/PrompterWindow.h"

#include "platform/DisplayLink.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/PlatformTexts.h"
#include "platform/ScreenCoordinates.h"
#include "platform/Screens.h"
#include "platform/TimerMaker.h"
#include "platform/WindowTraits.h"
#include "platform/qt/FocusOnClick.h"
#include "platform/qt/KeyTranslation.h"
#include "prompter/ControlStrip.h"
#include "prompter/PrompterContent.h"
#include "prompter/PrompterGeometry.h"
#include "prompter/PrompterKey.h"
#include "prompter/PrompterLook.h"
#include "prompter/ReadingStatistics.h"
#include "prompter/WindowShape.h"
#include "prompter/covers/NoticeBar.h"
#include "prompter/covers/TextCovers.h"
#include "prompter/view/PreciseScrolling.h"
#include "prompter/view/ScriptView.h"
#include "reading/ReadingConductor.h"
#include "reading/ReadingSession.h"
#include "screens/ScreenManager.h"
#include "settings/AppSettings.h"

#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int textMargin = 10;
constexpr int textTop = 44;
constexpr double pointsPerWheelLine = 80.0;
constexpr double unitsPerWheelStep = 120.0;

} // namespace

PrompterWindow::PrompterWindow(AppSettings& appSettings, ReadingSettings& borrowedReading,
                               const Platform& borrowedPlatform)
    : QWidget(nullptr, Qt::FramelessWindowHint | borrowedPlatform.windowTraits->creationFlags())
    , settings(appSettings)
    , readingSettings(borrowedReading)
    , platform(borrowedPlatform)
    , session(std::make_shared<ReadingSession>(settings.values(), readingSettings.values())) {
    setWindowTitle(u"Tessaline"_s);
    setAttribute(Qt::WA_TranslucentBackground);
    // The keyboard is another program's most of the time.
    setAttribute(Qt::WA_AlwaysShowToolTips);
    connect(&resizing, &ResizeAnimation::reached, this,
            [this](const QRect& reached) { place(reached, currentScreen().value_or(Screen{})); });
    connect(&resizing, &ResizeAnimation::finished, this, [this] {
        squareCorners = collapsed;
        shape();
        updateStatsOfWhatIsSeen();
    });
    setupUI();
    updateReadingFrame();
    updateFrame();
    textCovers->waitIfAsked();
    conductor = std::make_unique<ReadingConductor>(settings, readingSettings, session, platform);
    readingOptionsChanged();
    settingsObservation =
        settings.observe([this](const PersistedSettings& before) { settingsChanged(before); });
    readingObservation =
        readingSettings.observe([this](const ReadingOptions&) { readingOptionsChanged(); });
    platform.windowTraits->onTranslucencyChange(lifetime.guard([this] {
        textLook->update();
        shape();
    }));
    platform.windowTraits->onKeyboardRefused(lifetime.guard([this] { keyboardRefused(); }));
}

PrompterWindow::~PrompterWindow() {
    if (isVisible()) platform.windowTraits->release(*this);
}

void PrompterWindow::setupUI() {
    strip = new ControlStrip(this);
    scrollArea = new QWidget(this);
    scrollArea->setObjectName(u"prompter_scrollView"_s);
    view = new ScriptView(session, scrollArea);
    view->setObjectName(u"prompter_textView"_s);
    view->setAccessibleName(u"Script"_s);
    setFocusProxy(view);
    view->setFocus();
    content = std::make_unique<PrompterContent>(settings, *session, *view, *platform.renderTasks,
                                                *platform.mainQueue, [this] {
                                                    updateStats();
                                                    Q_EMIT textShown(content->text());
                                                });
    textCovers = new TextCovers(settings, readingSettings, *session, *platform.timers, *scrollArea);
    textCovers->setParent(this);
    noticeBar = new NoticeBar(*platform.timers, *view);
    connect(view, &ScriptView::layoutCompleted, this, &PrompterWindow::updateStats);
    textLook =
        std::make_unique<PrompterLook>(readingSettings, *platform.windowTraits, *view, *textCovers);
    connect(textLook.get(), &PrompterLook::changed, this, &PrompterWindow::shape);
}

void PrompterWindow::updateFrame() {
    const PrompterPlacement placement{settings.width(), settings.height(), settings.xOffset()};
    if (screenManager) {
        const Screen screen = screenManager->preferredScreen();
        setFrame(prompterFrame(placement, screen.frame), screen);
    } else if (const auto main = platform.screens->mainScreen()) {
        setFrame(prompterFrameOnMainScreen(placement, main->frame), *main);
    } else {
        return;
    }
    arrangeContent();
    squareCorners = collapsed;
    shape();
    updateStatsOfWhatIsSeen();
    if (const auto screen = currentScreen())
        platform.displayLinks->setRefreshRate(screen->refreshRate);
}

void PrompterWindow::setFrame(const Rect& target, const Screen& screen) {
    resizing.stop();
    place(toQtCoordinates(target, primaryGeometry()), screen);
}

void PrompterWindow::place(const QRect& target, const Screen& screen) {
    platform.windowTraits->place(*this, fromQtCoordinates(target, primaryGeometry()), screen);
}

Rect PrompterWindow::frame() const {
    return platform.windowTraits->frame(*this);
}

std::optional<Screen> PrompterWindow::currentScreen() const {
    if (auto covered = screenBelow(frame(), platform.screens->all())) return covered;
    if (screenManager) return screenManager->preferredScreen();
    return platform.screens->mainScreen();
}

double PrompterWindow::menuBarHeight() const {
    return tessaline::menuBarHeight(currentScreen());
}

void PrompterWindow::toggleCollapsed() {
    const Rect settledFrame =
        resizing.isRunning() ? fromQtCoordinates(resizing.target(), primaryGeometry()) : frame();
    if (!collapsed) expandedHeight = settledFrame.height;
    collapsed = !collapsed;
    const Rect target = collapsed ? collapsedFrame(settledFrame, menuBarHeight())
                                  : expandedFrame(settledFrame, expandedHeight);
    if (!collapsed) squareCorners = false;
    arrangeContent();
    textCovers->countDown(isTextSeen());
    resizing.run(toQtCoordinates(frame(), primaryGeometry()),
                 toQtCoordinates(target, primaryGeometry()));
    updateMinimizeButtonAppearance();
}

void PrompterWindow::shape() {
    updateShape(*this, squareCorners, platform.windowTraits->showsTranslucency(), hole);
    const bool passesClicks = textLook->isClickedThrough() && !collapsed;
    platform.windowTraits->setInputArea(*this, passesClicks ? std::optional(strip->geometry())
                                                            : std::nullopt);
}

void PrompterWindow::cutOut(const QRegion& part) {
    if (part == hole) return;
    hole = part;
    shape();
}

void PrompterWindow::arrangeContent() {
    const double stripHeight = menuBarHeight();
    strip->setGeometry(0, 0, width(), std::max(textTop, int(std::ceil(stripHeight))));
    strip->setStripHeight(stripHeight);
    const int textHeight = collapsed ? 0 : std::max(height() - textTop - textMargin, 0);
    const int textWidth = std::max(int(textLayoutWidth(width())), 0);
    scrollArea->setGeometry(textMargin, textTop, textWidth, textHeight);
    const bool heightChanges = textHeight != view->height();
    view->resize(scrollArea->size());
    textCovers->resize(scrollArea->size());
    // The hint is set for one height, and for none while nothing of it is seen.
    if (heightChanges && textHeight > 0 && content->isHint()) content->render();
}

void PrompterWindow::resizeEvent(QResizeEvent*) {
    arrangeContent();
    shape();
}

void PrompterWindow::setVisible(bool visible) {
    const bool changes = visible != isVisible();
    if (changes && !visible) platform.windowTraits->release(*this);
    QWidget::setVisible(visible);
    if (changes && visible) platform.windowTraits->adopt(*this);
    if (changes) textCovers->countDown(isTextSeen());
}

void PrompterWindow::showEvent(QShowEvent* event) {
    platform.windowTraits->excludeFromCapture(winId());
    platform.windowTraits->prepare(*this);
    if (!std::exchange(watchesClicks, true))
        new FocusOnClick(*windowHandle(), *platform.windowTraits);
    shape();
    QWidget::showEvent(event);
}

void PrompterWindow::makeKeyAndOrderFront() {
    show();
    raise();
    platform.windowTraits->takeKeyboard(winId());
}

/// Of use to somebody who clicks the window to type, once.
void PrompterWindow::keyboardRefused() {
    if (underMouse() && !collapsed && !std::exchange(toldOfKeyboard, true))
        noticeBar->tell(platformTexts().keyboardRefused);
}

void PrompterWindow::paintEvent(QPaintEvent*) {
    paintShape(*this, squareCorners, strip->height(), textLook->groundOpacity());
}

void PrompterWindow::updateText(const QString& text) {
    platform.mainQueue->post(lifetime.guard([this, text] {
        content->take(text);
        renderContent();
    }));
}

void PrompterWindow::rerender() {
    if (!content->isEmpty()) renderContent();
}

bool PrompterWindow::showsScript() const {
    return isVisible() && !content->isEmpty() && !content->isHint();
}

void PrompterWindow::renderContent() {
    updateReadingFrame();
    content->render();
}

void PrompterWindow::updateStats() {
    session->updateReadingTime();
    if (readingSettings.values().pace == PaceMode::speed) {
        strip->showStatistics(
            ReadingStatistics::labelText(session->words(), session->readingSeconds()),
            ReadingStatistics::labelColor(session->pace().rate));
    } else {
        strip->showStatistics(ReadingStatistics::pacedLabelText(session->words(),
                                                                session->secondsLeft().value_or(0),
                                                                session->secondsLate()),
                              ReadingStatistics::pacedLabelColor);
    }
}

// What changed while the window was collapsed was counted for a view without height.
void PrompterWindow::updateStatsOfWhatIsSeen() {
    if (!collapsed && !content->isEmpty()) updateStats();
}

PrompterStatus PrompterWindow::status() const {
    PrompterStatus status{.version = {},
                          .visible = isVisible(),
                          .collapsed = collapsed,
                          .source = settings.activeSourceType(),
                          .scrollPosition = view->scrollPosition(),
                          .maximumScrollPosition = view->maximumScrollPosition(),
                          .speed = settings.scrollSpeed(),
                          .rate = settings.scrollRate(),
                          .autoScroll = settings.autoScrollEnabled(),
                          .fontSize = settings.fontSize(),
                          .black = textCovers->isBlack(),
                          .keys = textCovers->showsKeys(),
                          .platform = platform.windowSystem};
    session->tellProgress(status);
    textLook->tell(status);
    return status;
}

void PrompterWindow::performScroll(double deltaY) {
    view->jumps().stop();
    session->moveBy(-deltaY);
}

void PrompterWindow::toggleAutoScroll() {
    settings.setAutoScrollEnabled(!settings.autoScrollEnabled());
}

// The frame, the font and the rate are taken over on request: also when they are not new, as one
// that was unfolded after its height had changed has another height than they say.
void PrompterWindow::settingsChanged(const PersistedSettings& before) {
    const PersistedSettings& now = settings.values();
    if (now.scrollSpeed != before.scrollSpeed) updateScrollParameters();
    if (now.autoScrollEnabled == before.autoScrollEnabled) return;
    textCovers->waitIfAsked();
    now.autoScrollEnabled ? session->start() : session->stop();
    textCovers->countDown(isTextSeen());
}

void PrompterWindow::updateReadingFrame() {
    ReadingFrame frame = ReadingFrame::of(readingSettings.values());
    // The hint keeps its place in the middle.
    if (content->isHint()) frame.isActive = false;
    view->setReadingFrame(frame);
}

/// With a promised pace, the label counts the rest down.
void PrompterWindow::readingOptionsChanged() {
    updateReadingFrame();
    constexpr TimerMaker::Interval second{1.0};
    if (readingSettings.values().pace == PaceMode::speed) {
        countingDown.reset();
    } else if (!countingDown) {
        countingDown =
            platform.timers->every(second, lifetime.guard([this] { updateStatsOfWhatIsSeen(); }));
    }
    updateStatsOfWhatIsSeen();
}

void PrompterWindow::updateScrollParameters() {
    session->updatePace();
    updateStats();
}

void PrompterWindow::updateSourceModeIndicator(SourceMode mode) {
    strip->showSourceMode(mode);
}

void PrompterWindow::updateSourceIndicator(SourceType source) {
    strip->showSource(source);
}

void PrompterWindow::updateMinimizeButtonAppearance() {
    strip->showCollapsed(collapsed);
}

void PrompterWindow::keyPressEvent(QKeyEvent* event) {
    if (const auto key = PrompterKey::of(*event)) {
        Q_EMIT keyPressed(*key);
    } else if (event->key() == Qt::Key_Escape) { // which nothing in the window had a use for
        platform.windowTraits->giveKeyboardBack(winId());
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PrompterWindow::wheelEvent(QWheelEvent* event) {
    if (!(translateModifiers(event->modifiers()) & Modifier::control))
        return QWidget::wheelEvent(event);
    const double points = event->angleDelta().y() / unitsPerWheelStep * pointsPerWheelLine;
    performScroll(preciseScrolling(*event).value_or(points));
}

} // namespace tessaline
