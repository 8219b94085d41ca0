#include "ui/reading/RemoteSection.h"

#include "ui/controls/LabelledRow.h"
#include "ui/controls/Switch.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

RemoteSection::RemoteSection(ReadingSettings& shared)
    : ReadingSection(shared), mediaKeysSwitch(new Switch(u"Media Keys"_s)) {
    mediaKeysSwitch->setObjectName(u"reading_mediaKeysSwitch"_s);
    connect(mediaKeysSwitch, &Switch::clicked, this,
            [this](bool on) { change([on](ReadingOptions& options) { options.mediaKeys = on; }); });
    addPart(new LabelledRow(u"Media Keys"_s, mediaKeysSwitch));
}

void RemoteSection::showOptions(const ReadingOptions& options) {
    mediaKeysSwitch->setChecked(options.mediaKeys);
}

} // namespace tessaline
