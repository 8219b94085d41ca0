#include "ui/config/NotePicker.h"

#include "ui/Alert.h"
#include "ui/controls/PopupButton.h"

#include <QPointer>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int listWidth = 300;
constexpr int listHeight = 25;
constexpr int selectButton = 0;

/// What an item of the list carries: notes of the same name differ in their ids.
QStringList represent(const NoteLibrary::Note& note) {
    return {note.id, note.name};
}

} // namespace

void NotePicker::pick(QWidget& window, NoteLibrary& library, const Picked& picked) {
    library.listNotes([host = QPointer(&window), &library, picked](const auto& answer) {
        if (!host) return;
        if (const auto* error = std::get_if<ContentSourceError>(&answer)) {
            showFailure(*host, library, *error);
            return;
        }
        const auto& notes = std::get<std::vector<NoteLibrary::Note>>(answer);
        if (notes.empty()) {
            AlertContent content;
            content.messageText = u"No Notes Found"_s;
            content.informativeText = u"You don't have any notes in Apple Notes yet."_s;
            Alert::beginSheet(*host, content);
            return;
        }
        showNoteSelectionSheet(*host, notes, picked);
    });
}

void NotePicker::showFailure(QWidget& window, NoteLibrary& library,
                             const ContentSourceError& error) {
    if (error.kind() == ContentSourceError::Kind::permissionDenied) {
        library.openAutomationPreferences();
        return;
    }
    AlertContent content;
    content.messageText = u"Error"_s;
    content.informativeText = error.errorDescription();
    content.style = AlertContent::Style::warning;
    Alert::beginSheet(window, content);
}

void NotePicker::showNoteSelectionSheet(QWidget& window,
                                        const std::vector<NoteLibrary::Note>& notes,
                                        const Picked& picked) {
    auto* list = new PopupButton(u"Note"_s, listWidth);
    list->setFixedHeight(listHeight);
    list->setObjectName(u"notePopup"_s);
    for (const NoteLibrary::Note& note : notes)
        list->addItem(note.name, represent(note));

    AlertContent content;
    content.messageText = u"Select a Note"_s;
    content.informativeText = u"Choose the note to display:"_s;
    content.buttons = {u"Select"_s, u"Cancel"_s};
    Alert::beginSheet(window, content, list, [list = QPointer(list), picked](int button) {
        if (button != selectButton || !list) return;
        const QStringList note = list->currentData().toStringList();
        if (note.size() == 2) picked({note[0], note[1]});
    });
}

} // namespace tessaline
