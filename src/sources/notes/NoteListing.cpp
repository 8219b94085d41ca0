#include "sources/notes/NoteListing.h"

namespace tessaline {

std::vector<NoteLibrary::Note> parseNoteListing(QStringView output) {
    std::vector<NoteLibrary::Note> notes;
    for (const QStringView line : output.tokenize(u'\n')) {
        const qsizetype tab = line.indexOf(u'\t');
        if (tab < 0) continue;
        const QStringView id = line.first(tab).trimmed();
        if (id.isEmpty()) continue;
        const QStringView rest = line.sliced(tab + 1);
        const qsizetype secondTab = rest.indexOf(u'\t');
        const QStringView name = secondTab < 0 ? rest : rest.first(secondTab);
        notes.push_back({id.toString(), name.trimmed().toString()});
    }
    return notes;
}

} // namespace tessaline
