#include "platform/macos/MacImage.h"

#include "platform/macos/CfHolder.h"

namespace tessaline {

QImage imageFromNative(CGImageRef image, const QSize& size) {
    if (!image || size.isEmpty()) return {};
    QImage result(size, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    const CfHolder<CGColorSpaceRef> colors(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    const auto layout = static_cast<std::uint32_t>(kCGImageAlphaPremultipliedFirst) |
                        static_cast<std::uint32_t>(kCGBitmapByteOrder32Host);
    const CfHolder<CGContextRef> context(CGBitmapContextCreate(
        result.bits(), static_cast<std::size_t>(result.width()),
        static_cast<std::size_t>(result.height()), 8,
        static_cast<std::size_t>(result.bytesPerLine()), colors.get(), layout));
    if (!context) return {};
    CGContextDrawImage(context.get(), CGRectMake(0, 0, size.width(), size.height()), image);
    return result;
}

} // namespace tessaline
