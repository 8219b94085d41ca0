#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include <optional>

#import <AppKit/AppKit.h>

namespace tessaline {

/// Where a window takes the mouse. A window of macOS takes it everywhere or nowhere: this one
/// changes that as the pointer moves, over our windows and over those of other applications, which
/// needs no permission.
class MacInputArea : public QObject {
public:
    MacInputArea() = default;
    ~MacInputArea() override;

    /// As `WindowTraits::setInputArea` says.
    void set(QWidget& window, const std::optional<QRect>& area);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch();
    void stopWatching();
    void follow() const;

    QPointer<QWidget> widget;
    std::optional<QRect> inputArea;
    id monitor = nil; ///< of movements elsewhere
};

} // namespace tessaline
