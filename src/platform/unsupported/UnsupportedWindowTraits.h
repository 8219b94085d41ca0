#pragma once

#include "platform/WindowTraits.h"

namespace tessaline {

/// For systems without a way to do more than Qt can: the window is asked to stay on top, and the
/// system decides on the rest. What cannot be done is logged once.
class UnsupportedWindowTraits final : public WindowTraits {
public:
    Qt::WindowFlags creationFlags() const override;
    bool showsTranslucency() const override;
    void onTranslucencyChange(std::function<void()> changed) override;
    bool canExcludeFromCapture() const override;
    bool excludeFromCapture(NativeWindow window) override;
    void place(QWidget& window, const Rect& frame, const Screen& screen) override;
    Rect frame(const QWidget& window) const override;
    void adopt(QWidget& window) override;
    void release(QWidget& window) override;
    bool canSetInputArea() const override;
    void setInputArea(QWidget& window, const std::optional<QRect>& area) override;
    void takeKeyboard(NativeWindow window) override;
    void giveKeyboardBack(NativeWindow window) override;

private:
    bool reportedCapture = false;
    bool reportedLevel = false;
};

} // namespace tessaline
