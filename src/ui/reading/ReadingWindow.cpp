#include "ui/reading/ReadingWindow.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/KeyList.h"
#include "controls/Labels.h"
#include "ui/WindowLook.h"
#include "ui/controls/Rows.h"
#include "ui/controls/SectionTitle.h"
#include "ui/controls/Separator.h"
#include "ui/reading/EyeLineSection.h"
#include "ui/reading/PaceSection.h"
#include "ui/reading/RemoteSection.h"
#include "ui/reading/StartEndSection.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize leastContent{320, 200};
constexpr int margin = 20;
constexpr int spacing = 10;

void addKeys(QVBoxLayout& column) {
    column.addWidget(new Separator(settingsColumnWidth));
    column.addWidget(new SectionTitle(u"Keys"_s));
    column.addWidget(makeLabel(u"While the prompter has the keyboard:"_s, systemFont(10),
                               SystemPalette::tertiaryLabel));
    auto* keys = new KeyList({.keyFont = monospacedFont(11, QFont::Medium),
                              .keyColor = SystemPalette::label,
                              .deedFont = systemFont(11),
                              .deedColor = SystemPalette::secondaryLabel},
                             1);
    keys->setObjectName(u"reading_keys"_s);
    column.addWidget(keys);
}

} // namespace

ReadingWindow::ReadingWindow(ReadingSettings& edited, const LookHelp& help,
                             const PageHelp& pageHelp, const std::function<QTime()>& now)
    : SideWindow(u"Reading"_s), settings(edited) {
    fillWithContent(*this, createContent(help, pageHelp, now), leastContent);
    refresh();
    observation = settings.observe([this](const ReadingOptions&) { showOptions(); });
}

QWidget* ReadingWindow::createContent(const LookHelp& help, const PageHelp& pageHelp,
                                      const std::function<QTime()>& now) {
    auto* content = new QWidget;
    QVBoxLayout* column = layOutColumn(*content, spacing);
    column->setContentsMargins(margin, margin, margin, margin);
    const auto add = [&](const QString& title, ReadingSection* section) {
        if (!sections.empty()) column->addWidget(new Separator(settingsColumnWidth));
        column->addWidget(new SectionTitle(title));
        column->addWidget(section);
        connect(section, &ReadingSection::sliderReleased, this, &ReadingWindow::announceSize);
        sections.push_back(section);
    };
    add(u"Pace"_s, new PaceSection(settings, now));
    add(u"Eye Line"_s, new EyeLineSection(settings));
    add(u"Start and End"_s, new StartEndSection(settings));
    add(u"Look"_s, new LookSection(settings, help));
    add(u"Remote Control"_s, new RemoteSection(settings));
    add(u"Remote Page"_s, new PageSection(settings, pageHelp));
    addKeys(*column);
    column->addStretch();
    return content;
}

void ReadingWindow::refresh() {
    showOptions();
    fitToContent(*this);
}

void ReadingWindow::showOptions() {
    for (ReadingSection* section : sections)
        section->showOptions(settings.values());
}

} // namespace tessaline
