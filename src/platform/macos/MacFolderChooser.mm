#include "platform/FolderChooser.h"
#include "platform/macos/MacAdapters.h"

#import <AppKit/AppKit.h>

namespace tessaline {

namespace {

/// The system's own panel: what is picked there the program may use from then on.
class MacFolderChooser final : public FolderChooser {
public:
    std::optional<QString> chooseFolder(const Question& question) override {
        NSOpenPanel* panel = [NSOpenPanel openPanel];
        panel.title = question.title.toNSString();
        panel.message = question.message.toNSString();
        panel.canChooseDirectories = YES;
        panel.canChooseFiles = NO;
        panel.allowsMultipleSelection = NO;
        panel.canCreateDirectories = NO;
        panel.directoryURL = [NSURL fileURLWithPath:question.startFolder.toNSString()];
        if ([panel runModal] != NSModalResponseOK || !panel.URL) return std::nullopt;
        return QString::fromNSString(panel.URL.path);
    }
};

} // namespace

std::unique_ptr<FolderChooser> makeFolderChooser() {
    return std::make_unique<MacFolderChooser>();
}

} // namespace tessaline
