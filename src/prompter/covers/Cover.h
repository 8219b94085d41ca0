#pragma once

#include <QWidget>

namespace tessaline {

/// Something that lies over the text for a while. Hidden at first.
class Cover : public QWidget {
    Q_OBJECT

public:
    explicit Cover(QWidget* parent);

protected:
    /// Tells screen readers, as an alert does, if it is seen.
    void announce();
};

} // namespace tessaline
