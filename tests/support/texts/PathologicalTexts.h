#pragma once

#include <QString>
#include <QStringView>

#include <span>

namespace tessaline {

/// A text that makes a careless scanner quadratic: `unit` over and over.
struct PathologicalText {
    const char* name;
    QStringView unit;

    /// The text cut to `length` UTF-16 units.
    QString make(qsizetype length) const;
};

/// All those we know of.
std::span<const PathologicalText> pathologicalTexts();

} // namespace tessaline
