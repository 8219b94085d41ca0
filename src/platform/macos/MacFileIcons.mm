#include "platform/FileIcons.h"
#include "platform/macos/MacAdapters.h"
#include "platform/macos/MacImage.h"

#include <QPixmap>

#import <AppKit/AppKit.h>

namespace tessaline {

namespace {

class MacFileIcons final : public FileIcons {
public:
    QIcon iconForFile(const QString& path) const override {
        NSImage* image = [NSWorkspace.sharedWorkspace iconForFile:path.toNSString()];
        QIcon icon;
        for (const int side : {16, 32, 64, 128}) {
            NSRect rect = NSMakeRect(0, 0, side, side);
            CGImageRef drawing = [image CGImageForProposedRect:&rect context:nil hints:nil];
            icon.addPixmap(QPixmap::fromImage(imageFromNative(drawing, QSize(side, side))));
        }
        return icon;
    }
};

} // namespace

std::unique_ptr<FileIcons> makeFileIcons() {
    return std::make_unique<MacFileIcons>();
}

} // namespace tessaline
