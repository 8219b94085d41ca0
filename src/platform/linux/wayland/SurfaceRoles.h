#pragma once

#include "platform/linux/wayland/LayerSurface.h"
#include "platform/linux/wayland/WaylandGlobals.h"

#include <QObject>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <functional>
#include <map>
#include <memory>
#include <set>

class QWidget;
struct wl_surface;

namespace tessaline {

/// Gives the program's windows their roles in place of Qt, to which a window is one among others:
/// all of them hang over the desktop where their geometry says, menus and tool tips as popups of
/// theirs. So they stay above panels and full-screen windows, on each workspace.
///
/// Some compositors put the later surface above the earlier one, others below. So of windows that
/// would cover each other only the last one is shown; the prompter is left to be cut out.
///
/// Needs `leaveRolesToUs` to have been called before the QGuiApplication was made.
class SurfaceRoles final : public QObject {
public:
    SurfaceRoles();
    ~SurfaceRoles() override;

    /// The window that never gets the keyboard unless asked to, from the next time it is shown.
    void setPrompter(QWindow* window) { prompter = window; }

    /// Ends the role of a window that is about to be hidden.
    void end(QWindow& window);

    /// Directs the keyboard to a window, or to whoever else it is for. Nothing happens where the
    /// window has no role.
    void setKeyboard(QWindow& window, LayerSurface::Keyboard keyboard);

    /// Shows a window anew, with a new role.
    void showAgain(QWindow& window);

    /// The window that the pointer is in, if any.
    QWindow* pointerWindow() const { return entered; }

    /// Called with the prompter's surface once it has its role, and with null before that ends.
    std::function<void(wl_surface* surface)> onPrompterSurface;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Hung {
        std::unique_ptr<LayerSurface> surface;
        QPointer<QScreen> screen;
        qreal scale = 1; ///< of the screen
    };

    void watch(QWindow& window);
    void watch(QScreen& screen);
    void give(QWindow& window);
    void hang(QWindow& window);
    void popUp(QWindow& window, SurfaceRole& parent);
    void follow(QWindow& window);
    QPoint cornerOfPointer(QWindow& window) const;
    void leaveIfOutside(QWindow& window);
    void lose(QWindow& window);
    void showHomeless();
    void raise(const QWidget& widget);
    void cover(const QWindow& upper);
    void uncover();
    bool isCovered(const QWindow& lower, const QWindow& upper) const;
    QWindow* parentOf(const QWindow& popup) const;
    SurfaceRole* roleOf(QWindow* window) const;
    void takeKeyboard(QWindow& window);
    void giveKeyboardBack(QWindow& window);
    LayerSurface::Keyboard firstKeyboard(const QWindow& window) const;

    WaylandGlobals globals;
    QPointer<QWindow> prompter;
    QPointer<QWindow> entered;
    QPointF pointer; ///< where it was last, in the window that it is in
    std::map<QWindow*, Hung> hung;
    std::map<QWindow*, std::unique_ptr<SurfaceRole>> popups;
    std::set<const QWindow*> watched;
    std::set<QWindow*> homeless; ///< lost their output
    std::set<QWindow*> covered;  ///< by later windows
};

} // namespace tessaline
