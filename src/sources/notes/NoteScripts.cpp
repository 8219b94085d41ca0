#include "sources/notes/NoteScripts.h"

using namespace Qt::Literals::StringLiterals;

namespace tessaline::noteScripts {

QString mostRecentNote() {
    return u"tell application \"Notes\"\n"
           "    set allNotes to every note\n"
           "    if (count of allNotes) > 0 then\n"
           "        set recentNote to last item of allNotes\n"
           "        return body of recentNote\n"
           "    else\n"
           "        return \"\"\n"
           "    end if\n"
           "end tell"_s;
}

QString noteWithIdentifier(const QString& noteId) {
    return "tell application \"Notes\"\n"
           "    set targetNote to first note whose id is \""_L1 +
           noteId +
           "\"\n"
           "    return body of targetNote\n"
           "end tell"_L1;
}

QString listOfNotes() {
    return u"tell application \"Notes\"\n"
           "    set output to \"\"\n"
           "    repeat with n in every note\n"
           "        set output to output & (id of n) & tab & (name of n) & linefeed\n"
           "    end repeat\n"
           "    return output\n"
           "end tell"_s;
}

} // namespace tessaline::noteScripts
