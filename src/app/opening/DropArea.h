#pragma once

#include <QObject>

#include <functional>

class QDropEvent;
class QWidget;

namespace tessaline {

struct DroppedContent;

/// Lets files and texts be dropped anywhere on a window. They are copied, whatever the other
/// program would rather do: nothing of it is moved away.
class DropArea : public QObject {
public:
    /// Borrows the window.
    DropArea(QWidget& window, std::function<void(const DroppedContent& content)> dropped);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool accept(QDropEvent& event) const;

    const std::function<void(const DroppedContent& content)> onDrop;
};

} // namespace tessaline
