#include "ui/config/SourceSection.h"

#include "appearance/PointFont.h"
#include "controls/ElidingLabel.h"
#include "settings/AppSettings.h"
#include "sources/SourceManager.h"
#include "ui/config/NotePicker.h"
#include "ui/controls/BezelButton.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Rows.h"
#include "ui/controls/SectionTitle.h"

#include <QGridLayout>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int spacing = 8;
constexpr int spacingBelowTitle = 10;

} // namespace

SourceSection::SourceSection(AppSettings& shared, SourceManager* manager, NoteLibrary& library,
                             QWidget* parent)
    : QWidget(parent), settings(shared), sourceManager(manager), notes(library) {
    QVBoxLayout* column = layOutColumn(*this, spacing);
    auto* title = new SectionTitle(u"Active Source"_s);
    column->addWidget(title);
    column->addSpacing(spacingBelowTitle - spacing);
    sourcePopup = new PopupButton(title->text(), 140);
    title->setBuddy(sourcePopup); // screen readers look for it among the popup's siblings
    sourcePopup->setObjectName(u"config_sourcePopup"_s);
    connect(sourcePopup, &PopupButton::activated, this, &SourceSection::sourceTypeChanged);
    column->addWidget(sourcePopup, 0, Qt::AlignLeading);

    sourceConfigContainer = new QWidget;
    sourceConfigContainer->setObjectName(u"sourceConfigContainer"_s);
    sourceConfigContainer->setFixedWidth(settingsColumnWidth);
    sourceConfigContainer->setMinimumHeight(30);
    auto* stacked = new QGridLayout(sourceConfigContainer);
    stacked->setContentsMargins({});
    stacked->addWidget(createFileRow(), 0, 0, Qt::AlignTop);
    stacked->addWidget(createNoteRow(), 0, 0, Qt::AlignTop);
    column->addWidget(sourceConfigContainer);
    rebuildSourcePopup();
}

// Never shown: no source of today reads a file that the user picks here.
QWidget* SourceSection::createFileRow() {
    auto* holder = new QWidget;
    holder->setObjectName(u"fileConfig"_s);
    QHBoxLayout* row = layOutRow(*holder, 8);
    filePathField = new ElidingLabel(Qt::ElideMiddle);
    filePathField->setFixedWidth(180);
    filePathField->setObjectName(u"filePathField"_s);
    filePathField->setFont(systemFont(13));
    filePathField->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    filePathField->showWithToolTip(settings.notePath());
    row->addWidget(filePathField);
    browseButton = new BezelButton(u"Browse..."_s);
    browseButton->setObjectName(u"browseButton"_s);
    connect(browseButton, &QPushButton::clicked, this, &SourceSection::browseForFile);
    row->addWidget(browseButton);
    row->addStretch();
    return holder;
}

QWidget* SourceSection::createNoteRow() {
    auto* holder = new QWidget;
    holder->setObjectName(u"noteConfig"_s);
    QHBoxLayout* row = layOutRow(*holder, 8);
    noteNameField = new ElidingLabel(Qt::ElideRight);
    noteNameField->setFixedWidth(150);
    noteNameField->setObjectName(u"noteNameField"_s);
    noteNameField->setFont(systemFont(13));
    showNoteName();
    row->addWidget(noteNameField);
    selectNoteButton = new BezelButton(u"Select Note..."_s);
    selectNoteButton->setObjectName(u"selectNoteButton"_s);
    connect(selectNoteButton, &QPushButton::clicked, this, &SourceSection::selectNote);
    row->addWidget(selectNoteButton);
    row->addStretch();
    return holder;
}

void SourceSection::rebuildSourcePopup() {
    sourcePopup->clear();
    for (const SourceType source : settings.getEnabledSources())
        sourcePopup->addItem(displayName(source), QVariant::fromValue(source));
    selectActiveSource();
    updateSourceConfigVisibility();
}

void SourceSection::selectActiveSource() {
    sourcePopup->selectItemCarrying(QVariant::fromValue(settings.activeSourceType()));
}

void SourceSection::updateSourceConfigVisibility() {
    auto* fileRow = sourceConfigContainer->findChild<QWidget*>(u"fileConfig"_s);
    auto* noteRow = sourceConfigContainer->findChild<QWidget*>(u"noteConfig"_s);
    if (!fileRow || !noteRow) return;
    fileRow->hide();
    const bool choosesNote = settings.activeSourceType() == SourceType::appleNotes;
    noteRow->setVisible(choosesNote);
    sourceConfigContainer->setVisible(choosesNote);
    if (choosesNote) showNoteName();
}

void SourceSection::showNoteName() {
    const auto& note = settings.appleNotesConfig();
    noteNameField->showWithToolTip(note ? note->noteName : u"No note selected"_s);
}

void SourceSection::sourceTypeChanged() {
    const QVariant selected = sourcePopup->currentData();
    if (!selected.canConvert<SourceType>()) return;
    const auto source = selected.value<SourceType>();
    if (sourceManager) {
        sourceManager->setActiveSource(source);
    } else {
        settings.setActiveSourceType(source);
    }
    updateSourceConfigVisibility();
    Q_EMIT sourceChanged(source);
}

void SourceSection::browseForFile() {}

void SourceSection::selectNote() {
    NotePicker::pick(*window(), notes, lifetime.guard([this](const AppleNotesConfiguration& note) {
        if (sourceManager) {
            sourceManager->updateAppleNotesConfig(note);
        } else {
            settings.setAppleNotesConfig(note);
        }
        noteNameField->showWithToolTip(note.noteName);
    }));
}

} // namespace tessaline
