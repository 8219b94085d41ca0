#include "prompter/view/ReadingGuidePainter.h"

#include "appearance/SystemPalette.h"
#include "prompter/view/ReadingFrame.h"
#include "prompter/view/ReadingRoom.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

constexpr double bandAlpha = 0.12;

// A marker grows with the text, within the margin beside it.
constexpr double markerShare = 0.6;
constexpr double lowestMarker = 8.0;
constexpr double highestMarker = 14.0;
constexpr double markerWidth = 0.7; // of its height

void paintMarkers(QPainter& painter, const ReadingRoom& room, double width) {
    const double height = std::clamp(room.lineHeight * markerShare, lowestMarker, highestMarker);
    const double y = room.eyeLine;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(SystemPalette::amber());
    for (const auto& [edge, inwards] : {std::pair{0.0, 1.0}, std::pair{width, -1.0}}) {
        painter.drawPolygon(QPolygonF{{edge, y - height / 2},
                                      {edge + inwards * height * markerWidth, y},
                                      {edge, y + height / 2}});
    }
}

void paintBand(QPainter& painter, const ReadingRoom& room, double lines, double width) {
    const double height = lines * room.lineHeight;
    const double top = room.eyeLine - height / 2;
    painter.fillRect(QRectF(0, top, width, height),
                     SystemPalette::withAlpha(SystemPalette::white, bandAlpha));
}

} // namespace

void paintReadingGuide(QPainter& painter, const ReadingFrame& frame, const ReadingRoom& room,
                       double width) {
    switch (frame.guide) {
    case ReadingGuide::none:
        return;
    case ReadingGuide::marker:
        return paintMarkers(painter, room, width);
    case ReadingGuide::band:
        return paintBand(painter, room, frame.guideLines, width);
    }
}

} // namespace tessaline
