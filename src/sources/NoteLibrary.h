#pragma once

#include "sources/ContentSourceError.h"

#include <QString>

#include <functional>
#include <variant>
#include <vector>

namespace tessaline {

/// The notes that the user may pick from.
class NoteLibrary {
public:
    struct Note {
        QString id;
        QString name;

        bool operator==(const Note&) const = default;
    };

    using Answer = std::variant<std::vector<Note>, ContentSourceError>;

    virtual ~NoteLibrary() = default;

    /// Asks for all notes in the background; the answer arrives on the main thread.
    virtual void listNotes(std::function<void(const Answer&)> completion) = 0;

    /// Shows the system's page with the permission that listing needs.
    virtual void openAutomationPreferences() = 0;
};

} // namespace tessaline
