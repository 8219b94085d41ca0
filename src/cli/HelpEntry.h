#pragma once

#include <QStringView>

namespace tessaline {

/// A term of a list with its explanation.
struct HelpEntry {
    QStringView term;
    QStringView text; ///< one or more lines; may be empty
};

} // namespace tessaline
