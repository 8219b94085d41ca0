#include "platform/StatusArea.h"
#include "platform/macos/MacAdapters.h"
#include "platform/macos/MacImage.h"

#import <AppKit/AppKit.h>

namespace tessaline {

namespace {

class MacStatusArea final : public StatusArea {
public:
    bool isThere() const override { return true; }
    bool opensMenus() const override { return true; }

    QImage symbol(const QString& name, const QString& description) const override {
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
};

} // namespace

std::unique_ptr<StatusArea> makeStatusArea() {
    return std::make_unique<MacStatusArea>();
}

} // namespace tessaline
