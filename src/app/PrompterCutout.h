#pragma once

#include <QObject>

class QWindow;

namespace tessaline {

class PrompterWindow;

/// Lets our other windows be seen and clicked where they lie over the prompter. Desktops keep the
/// prompter above all ordinary windows, so it is cut out there instead, while the user works with
/// one of those windows: with another program's window, that one may lie over ours.
class PrompterCutout : public QObject {
public:
    /// Borrows the prompter, which must outlive this.
    explicit PrompterCutout(PrompterWindow& prompter);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void focusMoved(QWindow* window);
    void update();

    PrompterWindow& prompter;
    bool isWanted = false;
};

} // namespace tessaline
