#pragma once

#include "platform/Lifetime.h"
#include "settings/SourceType.h"

#include <QWidget>

#include <functional>
#include <vector>

class QPushButton;

namespace tessaline {

class AppSettings;
class ElidingLabel;
class NoteLibrary;
class PopupButton;
class SourceManager;

/// The choice of the active source, with its title, and for Apple Notes of the note.
class SourceSection : public QWidget {
    Q_OBJECT

public:
    /// Borrows everything; `sourceManager` may be null.
    SourceSection(AppSettings& settings, SourceManager* sourceManager, NoteLibrary& notes,
                  QWidget* parent = nullptr);

    /// Lists the enabled sources and selects the active one.
    void rebuildSourcePopup();

    /// Selects the active source.
    void selectActiveSource();

    /// Shows the rows that the active source needs.
    void updateSourceConfigVisibility();

Q_SIGNALS:
    /// The user chose another source, which is active by now.
    void sourceChanged(SourceType source);

private:
    QWidget* createFileRow();
    QWidget* createNoteRow();
    void sourceTypeChanged();
    void browseForFile();
    void selectNote();
    void showNoteName();

    PopupButton* sourcePopup = nullptr;
    QWidget* sourceConfigContainer = nullptr;
    ElidingLabel* filePathField = nullptr;
    QPushButton* browseButton = nullptr;
    ElidingLabel* noteNameField = nullptr;
    QPushButton* selectNoteButton = nullptr;
    AppSettings& settings;
    SourceManager* sourceManager;
    NoteLibrary& notes;
    Lifetime lifetime;
};

} // namespace tessaline
