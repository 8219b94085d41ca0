#pragma once

#include <QImage>
#include <QString>

namespace tessaline {

/// The desktop's place for status items, such as a menu bar or a tray.
class StatusArea {
public:
    virtual ~StatusArea() = default;

    /// Whether there is one at this moment. The toolkit asks only once and sticks to what it found
    /// then: make an item after this said yes. May take a second.
    virtual bool isThere() const = 0;

    /// Whether a click with the first button on an item opens its menu. Elsewhere the second button
    /// does.
    virtual bool opensMenus() const = 0;

    /// The system's own drawing of this name, described for screen readers; null where it has none.
    virtual QImage symbol(const QString& name, const QString& description) const = 0;
};

} // namespace tessaline
