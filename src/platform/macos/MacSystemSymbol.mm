#include "platform/SystemAdapters.h"
#include "platform/macos/MacImage.h"

#import <AppKit/AppKit.h>

namespace tessaline {

QImage systemSymbol(const QString& name, const QString& description) {
    // Enough for any display.
    constexpr double pixelsPerPoint = 2.0;
    NSImage* symbol = [NSImage imageWithSystemSymbolName:name.toNSString()
                                accessibilityDescription:description.toNSString()];
    if (!symbol) return {};
    const QSize size = (QSizeF::fromCGSize(symbol.size) * pixelsPerPoint).toSize();
    NSRect rect = NSMakeRect(0, 0, size.width(), size.height());
    CGImageRef drawing = [symbol CGImageForProposedRect:&rect context:nil hints:nil];
    QImage image = imageFromNative(drawing, size);
    image.setDevicePixelRatio(pixelsPerPoint);
    return image;
}

bool hasStatusArea() {
    return true;
}

bool statusItemOpensItsMenu() {
    return true;
}

} // namespace tessaline
