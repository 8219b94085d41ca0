#include "platform/unsupported/UnsupportedWindowTraits.h"

#include "platform/PlatformLog.h"
#include "platform/qt/WidgetFrame.h"

#include <utility>

namespace tessaline {
Qt::WindowFlags UnsupportedWindowTraits::creationFlags() const {
    return Qt::WindowStaysOnTopHint;
}

bool UnsupportedWindowTraits::showsTranslucency() const {
    return true;
}

void UnsupportedWindowTraits::onTranslucencyChange(std::function<void()> /*changed*/) {}

bool UnsupportedWindowTraits::canExcludeFromCapture() const {
    return false;
}

bool UnsupportedWindowTraits::excludeFromCapture(NativeWindow /*window*/) {
    if (!std::exchange(reportedCapture, true)) {
        qCWarning(windowLog, "This system cannot keep a window out of screen captures.");
    }
    return false;
}

void UnsupportedWindowTraits::place(QWidget& window, const Rect& frame, const Screen& /*screen*/) {
    setFrame(window, frame);
}

Rect UnsupportedWindowTraits::frame(const QWidget& window) const {
    return frameOf(window);
}

void UnsupportedWindowTraits::adopt(QWidget& /*window*/) {
    if (!std::exchange(reportedLevel, true)) {
        qCWarning(windowLog, "This system decides by itself how a window is placed and stacked.");
    }
}

void UnsupportedWindowTraits::release(QWidget& /*window*/) {}

bool UnsupportedWindowTraits::canSetInputArea() const {
    return false;
}

void UnsupportedWindowTraits::setInputArea(QWidget& /*window*/,
                                           const std::optional<QRect>& /*area*/) {}

void UnsupportedWindowTraits::takeKeyboard(NativeWindow /*window*/) {}

void UnsupportedWindowTraits::giveKeyboardBack(NativeWindow /*window*/) {}

} // namespace tessaline
