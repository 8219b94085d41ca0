#pragma once

#include "platform/WindowTraits.h"
#include "platform/linux/wayland/SurfaceFrames.h"
#include "platform/linux/wayland/SurfaceRoles.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace tessaline {

/// Traits by means of the compositor's layers: the prompter hangs over everything where it is put.
///
/// The keyboard comes only to who clicks into the prompter: while it is here, the compositor gives
/// it to nobody else, whatever the user clicks, so it must be certain to be given back.
class LayerWindowTraits final : public WindowTraits {
public:
    /// `frames` follows the prompter's surface.
    LayerWindowTraits(std::unique_ptr<SurfaceRoles> roles, std::shared_ptr<SurfaceFrames> frames);
    ~LayerWindowTraits() override;

    Qt::WindowFlags creationFlags() const override;
    bool showsTranslucency() const override { return true; }
    void onTranslucencyChange(std::function<void()> /*changed*/) override {}
    bool canExcludeFromCapture() const override { return false; }
    bool excludeFromCapture(NativeWindow window) override;

    void place(QWidget& window, const Rect& frame, const Screen& screen) override;
    Rect frame(const QWidget& window) const override;
    void adopt(QWidget& window) override;
    void release(QWidget& window) override;
    bool canSetInputArea() const override { return true; }
    void setInputArea(QWidget& window, const std::optional<QRect>& area) override;

    void takeKeyboard(NativeWindow window) override;
    void giveKeyboardBack(NativeWindow window) override;

private:
    void follow(wl_surface* surface);
    void insistOnGivingBack();

    std::unique_ptr<SurfaceRoles> roles;
    std::shared_ptr<SurfaceFrames> frames;
    QPointer<QWidget> prompterWidget;
    QPointer<QWindow> prompter;
    std::optional<QRect> inputArea;
    bool reportedCapture = false;
    QTimer insisting;
    QObject connections; ///< end with this
};

} // namespace tessaline
