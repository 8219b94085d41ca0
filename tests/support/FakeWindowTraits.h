#pragma once

#include "platform/Screen.h"
#include "platform/WindowTraits.h"

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tessaline {

/// Window traits that keep book of what a window asked for, and move it where it is placed.
class FakeWindowTraits final : public WindowTraits {
public:
    Qt::WindowFlags creationFlags() const override { return flags; }
    bool showsTranslucency() const override { return translucency; }
    void onTranslucencyChange(std::function<void()> changed) override {
        translucencyChanged = std::move(changed);
    }
    bool canExcludeFromCapture() const override { return canExclude; }

    bool excludeFromCapture(NativeWindow window) override {
        if (canExclude) excluded.push_back(window);
        return canExclude;
    }

    void place(QWidget& window, const Rect& frame, const Screen& screen) override;
    Rect frame(const QWidget& window) const override;
    void adopt(QWidget& window) override;
    void release(QWidget& window) override;

    bool canSetInputArea() const override { return letsMouseThrough; }
    void setInputArea(QWidget& /*window*/, const std::optional<QRect>& area) override {
        inputArea = area;
    }

    void takeKeyboard(NativeWindow window) override { keyboardOwner = window; }

    void giveKeyboardBack(NativeWindow window) override {
        if (keyboardOwner == window) keyboardOwner.reset();
    }

    void onKeyboardRefused(const std::function<void()>& refused) override {
        keyboardRefused = refused;
    }

    Qt::WindowFlags flags = Qt::BypassWindowManagerHint;
    bool translucency = true;
    std::function<void()> translucencyChanged;
    std::function<void()> keyboardRefused;
    bool canExclude = true;
    bool letsMouseThrough = true;
    std::vector<NativeWindow> excluded;
    std::vector<const QWidget*> floating; ///< adopted and not released
    std::vector<std::pair<Rect, Screen>> places;
    std::optional<QRect> inputArea;            ///< none: all of the window
    std::optional<NativeWindow> keyboardOwner; ///< none: another program has the keyboard
};

} // namespace tessaline
