#include "prompter/ControlStrip.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/ElidingLabel.h"
#include "controls/IconImage.h"
#include "controls/Labels.h"
#include "prompter/PrompterGeometry.h"
#include "prompter/SourceIcon.h"
#include "prompter/controls/PressableButton.h"
#include "prompter/controls/TrafficLightCloseButton.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int margin = 10;
constexpr int gap = 4;
constexpr int closeButtonSide = 12;
constexpr int sourceIconSide = 12;
constexpr int minimizeButtonSide = 18; // room for each of its glyphs
constexpr double stripGlyphSize = 16.0;
constexpr double smallGlyphSize = 12.0;
constexpr double sourceGlyphSize = 14.0;

QString shownName(SourceType source) {
    return displayName(source).toUpper();
}

void describe(QWidget& control, const QString& identifier, const QString& name,
              const QString& toolTip) {
    control.setObjectName(identifier);
    control.setAccessibleName(name);
    control.setToolTip(toolTip);
}

/// The width that a label needs for each name it may show.
int widthOfWidestSource(const QFont& font) {
    QLabel label;
    label.setFont(font);
    int widest = 0;
    for (const SourceType source : availableSources) {
        label.setText(shownName(source));
        widest = std::max(widest, label.sizeHint().width());
    }
    return widest;
}

/// Puts a control to the right of `x`, centred on a height; returns where the next may begin.
int place(QWidget& control, int x, double centre, const QSize& size) {
    control.setGeometry(x, int(std::lround(centre - size.height() / 2.0)), size.width(),
                        size.height());
    return x + size.width() + gap;
}

} // namespace

ControlStrip::ControlStrip(QWidget* parent)
    : QWidget(parent)
    , quitButton(new TrafficLightCloseButton(this))
    , minimizeButton(new PressableButton(u"—"_s, smallGlyphSize, this))
    , configButton(new PressableButton(u"⚙\uFE0E"_s, stripGlyphSize, this))
    , autoScrollButton(new PressableButton(u"⏯"_s, stripGlyphSize, this))
    , sourceIconView(new IconImage({}, sourceIconSide, this))
    , sourceLabel(new QLabel(u"CLIP"_s, this))
    , pasteButton(new PressableButton(u"📋"_s, smallGlyphSize, this))
    , statsLabel(new ElidingLabel(Qt::ElideLeft, this)) {
    describe(*quitButton, u"prompter_quitButton"_s, u"Quit"_s, u"Quit Tessaline"_s);
    describe(*minimizeButton, u"prompter_minimizeButton"_s, u"Minimize"_s,
             u"Minimize/Expand window"_s);
    describe(*configButton, u"prompter_configButton"_s, u"Settings"_s, u"Open Settings"_s);
    describe(*autoScrollButton, u"prompter_autoScrollButton"_s, u"Toggle Auto-Scroll"_s,
             u"Toggle auto-scroll"_s);
    describe(*pasteButton, u"prompter_pasteButton"_s, u"Toggle content source"_s,
             u"Toggle: Paste from clipboard / Back to file"_s);
    describe(*sourceLabel, u"prompter_sourceLabel"_s, {}, u"Content source"_s);
    describe(*statsLabel, u"prompter_statsLabel"_s, {}, u"Reading statistics"_s);
    sourceLabel->setFont(systemFont(9, QFont::Bold));
    sourceLabel->setAlignment(Qt::AlignCenter);
    // Whoever presses the button beside it again and again finds it in the same place.
    sourceLabel->setMinimumWidth(widthOfWidestSource(sourceLabel->font()));
    sourceIconView->hide();
    statsLabel->setFont(systemFont(11, QFont::Medium));
    statsLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setTextColor(*statsLabel, Qt::white);
    sourceIconView->setObjectName(u"prompter_sourceIconView"_s);
    connect(quitButton, &QAbstractButton::clicked, this, &ControlStrip::quitPressed);
    connect(minimizeButton, &QAbstractButton::clicked, this, &ControlStrip::minimizePressed);
    connect(configButton, &QAbstractButton::clicked, this, &ControlStrip::configPressed);
    connect(autoScrollButton, &QAbstractButton::clicked, this, &ControlStrip::autoScrollPressed);
    connect(pasteButton, &QAbstractButton::clicked, this, &ControlStrip::pastePressed);
    showSourceMode(SourceMode::file);
}

void ControlStrip::setStripHeight(double points) {
    stripHeight = points;
    arrange();
}

void ControlStrip::resizeEvent(QResizeEvent*) {
    arrange();
}

void ControlStrip::arrange() {
    const double centre = stripHeight / 2;
    const auto control = [&](QWidget& widget, int x) {
        return place(widget, x, centre, widget.sizeHint().expandedTo(widget.minimumSize()));
    };
    quitButton->setGeometry(margin, int(std::lround(closeButtonTop(stripHeight))), closeButtonSide,
                            closeButtonSide);
    int x = place(*minimizeButton, margin + closeButtonSide + gap, centre,
                  {minimizeButtonSide, minimizeButtonSide});
    x = control(*configButton, x);
    x = control(*autoScrollButton, x);
    if (!sourceIconView->isHidden()) x = control(*sourceIconView, x);
    x = control(*sourceLabel, x);
    x = control(*pasteButton, x);
    const int statsWidth = std::max(width() - margin - x, 0);
    place(*statsLabel, x, centre, {statsWidth, statsLabel->sizeHint().height()});
}

void ControlStrip::showStatistics(const QString& text, const QColor& color) {
    statsLabel->setText(text);
    setTextColor(*statsLabel, color);
}

void ControlStrip::showSourceName(const QString& name, const QColor& color) {
    sourceLabel->setText(name);
    setTextColor(*sourceLabel, color);
    arrange();
}

void ControlStrip::showSourceMode(SourceMode mode) {
    const bool isFile = mode == SourceMode::file;
    pasteButton->setGlyph(isFile ? u"📋"_s : u"📄"_s, sourceGlyphSize);
    pasteButton->setToolTip(isFile ? u"Switch to clipboard mode (paste)"_s
                                   : u"Switch back to file mode"_s);
    showSourceName(isFile ? u"FILE"_s : u"CLIP"_s,
                   isFile ? SystemPalette::blue : SystemPalette::orange);
}

void ControlStrip::showSource(SourceType source) {
    sourceIconView->setIcon(sourceIcon(source));
    sourceIconView->setAccessibleName(displayName(source));
    sourceIconView->show();
    pasteButton->setGlyph(source == SourceType::clipboard ? u"📄"_s : u"📋"_s, sourceGlyphSize);
    pasteButton->setToolTip(u"Cycle content source (current: %1)"_s.arg(displayName(source)));
    showSourceName(shownName(source), sourceColor(source));
}

void ControlStrip::showCollapsed(bool collapsed) {
    if (collapsed) {
        minimizeButton->setGlyph(u"□"_s, 14, QFont::DemiBold);
    } else {
        minimizeButton->setGlyph(u"—"_s, 14, QFont::Bold);
    }
    arrange();
}

} // namespace tessaline
