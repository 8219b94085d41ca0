#pragma once

#include "sources/NoteLibrary.h"

#include <QStringView>

#include <vector>

namespace tessaline {

/// The notes that a listing names, in its order: a line each, with an identifier and a name between
/// tabs. Lines without a tab or an identifier are skipped. Any thread.
std::vector<NoteLibrary::Note> parseNoteListing(QStringView output);

} // namespace tessaline
