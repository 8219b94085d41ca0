#pragma once

#include <QString>

namespace tessaline {

// Pieces of a manual page in the man(7) language. Each function returns whole lines.

/// Text that means nothing but itself wherever it stands in a line.
QString roffText(QStringView text);

/// Text of several lines as filled paragraphs; an empty line separates two.
QString roffParagraphs(QStringView text);

/// An indented paragraph under a term; `term` is markup.
QString roffEntry(const QString& term, QStringView text);

QString roffBold(QStringView text);   ///< markup within a line
QString roffItalic(QStringView text); ///< markup within a line

} // namespace tessaline
