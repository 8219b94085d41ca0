#include "ui/reading/FontChoice.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "ui/controls/LabelledRow.h"
#include "ui/controls/Rows.h"
#include "ui/reading/NamePopup.h"

#include <QFontDatabase>
#include <QSignalBlocker>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int spacing = 6;
constexpr int popupWidth = 160;

const QStringList& fontsForEasyReading() {
    static const QStringList names{u"Atkinson Hyperlegible"_s,
                                   u"Atkinson Hyperlegible Next"_s,
                                   u"OpenDyslexic"_s,
                                   u"Lexend"_s,
                                   u"Lexend Deca"_s,
                                   u"Luciole"_s,
                                   u"Andika"_s,
                                   u"Verdana"_s};
    return names;
}

QString hintText() {
    QStringList installed;
    for (const QString& name : fontsForEasyReading())
        if (QFontDatabase::hasFamily(name)) installed += name;
    if (installed.isEmpty()) {
        return u"There are fonts made for easy reading, such as Atkinson Hyperlegible, "
               u"OpenDyslexic "
               u"and Lexend. None of them is installed."_s;
    }
    return u"Made for easy reading: %1."_s.arg(installed.join(u", "_s));
}

bool canBeRead(const QString& family) {
    return !QFontDatabase::isPrivateFamily(family) && QFontDatabase::isSmoothlyScalable(family);
}

} // namespace

FontChoice::FontChoice()
    : popup(new NamePopup(u"Font"_s, popupWidth))
    , hint(makeWrappingLabel({}, systemFont(11), SystemPalette::secondaryLabel))
    , missing(makeWrappingLabel({}, systemFont(11), SystemPalette::orange)) {
    popup->setObjectName(u"reading_fontPopup"_s);
    popup->addItem(u"Default"_s, QString());
    hint->setObjectName(u"reading_fontHint"_s);
    missing->setObjectName(u"reading_fontMissing"_s);
    // Typing a name selects it as well, which is no activation.
    connect(popup, &PopupButton::currentIndexChanged, this,
            [this](int item) { Q_EMIT chosen(popup->itemData(item).toString()); });
    QVBoxLayout* column = layOutColumn(*this, spacing);
    column->addWidget(new LabelledRow(u"Font"_s, popup));
    column->addWidget(missing);
    column->addWidget(hint);
}

void FontChoice::show(const std::optional<QString>& family) {
    const QSignalBlocker silence(popup);
    if (popup->count() == 1) addFamilies();
    select(family.value_or(QString()));
    const bool isMissing = family && !QFontDatabase::hasFamily(*family);
    missing->setVisible(isMissing);
    if (isMissing) {
        missing->setText(
            u"“%1” is not installed: the text is shown in the default font."_s.arg(*family));
    }
}

void FontChoice::addFamilies() {
    const QStringList families = QFontDatabase::families();
    for (const QString& family : families)
        if (canBeRead(family)) popup->addItem(family, family);
    hint->setText(hintText());
}

void FontChoice::select(const QString& family) {
    if (popup->selectItemCarrying(family)) return;
    popup->addItem(family, family);
    popup->setCurrentIndex(popup->count() - 1);
}

} // namespace tessaline
