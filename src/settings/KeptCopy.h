#pragma once

#include <QString>

namespace tessaline {

/// Copies a regular file that cannot be used, before it is written over: beside it, named
/// "….unreadable", or with a number behind where something else has that name, be it a file or a
/// link. What is there stays as it is. A copy of the same bytes that is there already is enough.
/// The copy has the file's permissions. Returns its path; empty on failure, with a one-line
/// description in `error`. Any thread.
QString keepCopy(const QString& path, QString* error);

} // namespace tessaline
