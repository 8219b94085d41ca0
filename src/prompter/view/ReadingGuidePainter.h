#pragma once

class QPainter;

namespace tessaline {

struct ReadingFrame;
struct ReadingRoom;

/// Draws the guide that a frame asks for over a view of this width, in points from the view's top
/// left corner: triangles at both edges that point at the eye line, or a light band around it.
void paintReadingGuide(QPainter& painter, const ReadingFrame& frame, const ReadingRoom& room,
                       double width);

} // namespace tessaline
