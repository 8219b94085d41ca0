#include "platform/linux/x11/X11InputArea.h"

#include <QWidget>
#include <QWindow>

#include <xcb/shape.h>
#include <xcb/xfixes.h>

namespace tessaline {

namespace {

/// In the pixels of the server, each of which the area at least touches.
xcb_rectangle_t pixelsOf(const QRect& area, double ratio) {
    const QRect pixels =
        QRectF(area.x() * ratio, area.y() * ratio, area.width() * ratio, area.height() * ratio)
            .toAlignedRect();
    return {std::int16_t(pixels.x()), std::int16_t(pixels.y()), std::uint16_t(pixels.width()),
            std::uint16_t(pixels.height())};
}

} // namespace

void X11InputArea::set(const QWidget& window, const std::optional<QRect>& area) {
    const QWindow* native = window.windowHandle();
    if (!native || (!area && !isSet)) return;
    isSet = area.has_value();
    xcb_xfixes_region_t region = XCB_NONE; // which takes the shape away
    if (area) {
        const xcb_rectangle_t rectangle = pixelsOf(*area, native->devicePixelRatio());
        region = xcb_generate_id(connection);
        xcb_xfixes_create_region(connection, region, 1, &rectangle);
    }
    xcb_xfixes_set_window_shape_region(connection, xcb_window_t(native->winId()),
                                       XCB_SHAPE_SK_INPUT, 0, 0, region);
    if (region != XCB_NONE) xcb_xfixes_destroy_region(connection, region);
    xcb_flush(connection);
}

} // namespace tessaline
