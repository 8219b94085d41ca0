#include "macos/adapters/FakeMac.h"

#include <cstring>
#include <memory>

using namespace Qt::Literals::StringLiterals;

using tessaline::FakeObjectiveC::autoreleased;
using tessaline::FakeObjectiveC::make;
using tessaline::FakeObjectiveC::Object;

TESSALINE_FAKE_CLASS(NSAppearance);
TESSALINE_FAKE_CLASS(NSApplication);
TESSALINE_FAKE_CLASS(NSArray);
TESSALINE_FAKE_CLASS(NSEvent);
TESSALINE_FAKE_CLASS(NSImage);
TESSALINE_FAKE_CLASS(NSOpenPanel);
TESSALINE_FAKE_CLASS(NSProcessInfo);
TESSALINE_FAKE_CLASS(NSRunningApplication);
TESSALINE_FAKE_CLASS(NSString);
TESSALINE_FAKE_CLASS(NSURL);
TESSALINE_FAKE_CLASS(NSView);
TESSALINE_FAKE_CLASS(NSWindow);
TESSALINE_FAKE_CLASS(NSWorkspace);

extern "C" {
Object* NSApp = nullptr;
extern Object* const NSAppearanceNameDarkAqua;
Object* const NSAppearanceNameDarkAqua = nullptr;
}

namespace tessaline {

namespace {

using Selector = const char*;

struct Size {
    double width;
    double height;
};

struct Rectangle {
    double x, y;
    Size size;
};

struct Version {
    long major, minor, patch;
};

/// A block as the compiler lays it out.
struct Block {
    struct Helpers {
        unsigned long reserved;
        unsigned long size;
        void (*copy)(void* to, const void* from);
        void (*dispose)(const void* block);
    };
    static constexpr int hasHelpers = 1 << 25;

    void* isa;
    int flags;
    int reserved;
    void (*invoke)(Block*, Object*);
    Helpers* helpers;
};

/// A copy of a block, as whoever keeps one makes it.
class KeptBlock {
public:
    explicit KeptBlock(const Block& original)
        : memory(std::make_unique<std::max_align_t[]>(
              original.helpers->size / sizeof(std::max_align_t) + 1)) {
        std::memcpy(memory.get(), &original, original.helpers->size);
        if (original.flags & Block::hasHelpers) original.helpers->copy(memory.get(), &original);
    }
    ~KeptBlock() {
        if (block().flags & Block::hasHelpers) block().helpers->dispose(memory.get());
    }
    KeptBlock(const KeptBlock&) = delete;
    KeptBlock& operator=(const KeptBlock&) = delete;

    void call(Object* argument) { block().invoke(&block(), argument); }

private:
    Block& block() { return *reinterpret_cast<Block*>(memory.get()); }

    std::unique_ptr<std::max_align_t[]> memory;
};

std::unique_ptr<KeptBlock> eventHandler;

void note(const QString& call) {
    fakeMac().calls += call;
}

template <typename Function>
void teach(const Object& type, Selector selector, Function function) {
    FakeObjectiveC::teach(type, selector, FakeObjectiveC::method(+function));
}

/// A method that takes a number and only writes it down.
void teachToNote(const Object& type, Selector selector) {
    teach(type, selector, [](Object*, Selector name, long value) {
        note(u"%1%2"_s.arg(QLatin1String(name)).arg(value));
    });
}

/// The same for a yes or no, of which a caller sets one byte only.
void teachToNoteWhether(const Object& type, Selector selector) {
    teach(type, selector, [](Object*, Selector name, bool value) {
        note(u"%1%2"_s.arg(QLatin1String(name)).arg(value));
    });
}

void teachToNoteText(const Object& type, Selector selector) {
    teach(type, selector, [](Object*, Selector name, Object* value) {
        note(QLatin1String(name) + (value ? value->text : u"nothing"_s));
    });
}

/// A picture has nothing to it but that it is there.
Object* thePicture() {
    return fakeMac().hasPictures ? reinterpret_cast<Object*>(&fakeMac()) : nullptr;
}

void teachWindows() {
    teach(NSViewClass, "window", [](Object*, Selector) { return fakeMac().window; });
    for (const Selector number : {"setSharingType:", "setLevel:", "setCollectionBehavior:"})
        teachToNote(NSWindowClass, number);
    teachToNoteWhether(NSWindowClass, "setHasShadow:");
    teachToNoteWhether(NSWindowClass, "setIgnoresMouseEvents:");
    teach(NSWindowClass, "isKeyWindow",
          [](Object* window, Selector) { return window == fakeMac().keyWindow; });
    teach(NSWindowClass, "makeKeyWindow", [](Object* window, Selector) {
        note(u"makeKeyWindow"_s);
        fakeMac().keyWindow = window;
    });
    teach(NSProcessInfoClass, "processInfo",
          [](Object*, Selector) { return autoreleased(make(NSProcessInfoClass)); });
    teach(NSProcessInfoClass,
          "isOperatingSystemAtLeastVersion:", [](Object*, Selector, Version version) {
              return fakeMac().majorVersion >= version.major;
          });
}

void teachApplications() {
    teach(NSApplicationClass, "isActive", [](Object*, Selector) { return fakeMac().isActive; });
    teach(NSApplicationClass, "keyWindow", [](Object*, Selector) { return fakeMac().keyWindow; });
    teach(NSApplicationClass, "activateIgnoringOtherApps:", [](Object*, Selector name, bool yes) {
        note(u"%1%2"_s.arg(QLatin1String(name)).arg(yes));
        fakeMac().isActive = true;
    });
    teachToNote(NSApplicationClass, "setActivationPolicy:");
    teachToNoteText(NSApplicationClass, "setAppearance:");
    teach(NSAppearanceClass, "appearanceNamed:", [](Object*, Selector, Object* name) {
        return name ? nullptr : autoreleased(make(NSAppearanceClass, u"dark"_s));
    });
    teach(NSRunningApplicationClass, "currentApplication",
          [](Object*, Selector) { return fakeMac().ourselves; });
    teach(NSRunningApplicationClass,
          "isEqual:", [](Object* one, Selector, Object* other) { return one == other; });
    teach(NSRunningApplicationClass,
          "activateWithOptions:", [](Object* application, Selector name, unsigned long options) {
              note(u"%1%2 %3"_s.arg(QLatin1String(name)).arg(options).arg(application->text));
              return true;
          });
    teach(NSWorkspaceClass, "sharedWorkspace",
          [](Object*, Selector) { return autoreleased(make(NSWorkspaceClass)); });
    teach(NSWorkspaceClass, "menuBarOwningApplication",
          [](Object*, Selector) { return fakeMac().menuBarOwner; });
    teach(NSWorkspaceClass, "URLForApplicationWithBundleIdentifier:",
          [](Object*, Selector, Object* identifier) -> Object* {
              note(u"application "_s + identifier->text);
              if (fakeMac().applications.isEmpty()) return nullptr;
              return autoreleased(FakeMacParts::newAddress(fakeMac().applications.first()));
          });
}

void teachFiles() {
    teach(NSURLClass, "path", [](Object* address, Selector) {
        return autoreleased(FakeMacParts::newString(address->text));
    });
    teach(NSURLClass, "fileURLWithPath:", [](Object*, Selector, Object* path) {
        return autoreleased(FakeMacParts::newAddress(path->text));
    });
    teach(NSArrayClass, "countByEnumeratingWithState:objects:count:",
          [](Object* list, Selector, unsigned long* state, Object** found,
             unsigned long most) -> unsigned long {
              const QStringList addresses = list->text.split(u'\n', Qt::SkipEmptyParts);
              unsigned long count = 0;
              for (; count < most && state[0] < std::size_t(addresses.size());
                   ++count, ++state[0]) {
                  const QString& address = addresses[qsizetype(state[0])];
                  found[count] = autoreleased(FakeMacParts::newAddress(address));
              }
              static unsigned long changes;
              state[1] = reinterpret_cast<unsigned long>(found);
              state[2] = reinterpret_cast<unsigned long>(&changes);
              return count;
          });
    teach(NSOpenPanelClass, "openPanel",
          [](Object*, Selector) { return autoreleased(make(NSOpenPanelClass)); });
    for (const Selector text : {"setTitle:", "setMessage:", "setDirectoryURL:"})
        teachToNoteText(NSOpenPanelClass, text);
    for (const Selector choice : {"setCanChooseDirectories:", "setCanChooseFiles:",
                                  "setAllowsMultipleSelection:", "setCanCreateDirectories:"})
        teachToNoteWhether(NSOpenPanelClass, choice);
    teach(NSOpenPanelClass, "runModal",
          [](Object*, Selector) -> long { return fakeMac().panelAnswersYes; });
    teach(NSOpenPanelClass, "URL", [](Object*, Selector) -> Object* {
        if (!fakeMac().pickedFolder) return nullptr;
        return autoreleased(FakeMacParts::newAddress(*fakeMac().pickedFolder));
    });
}

void teachPictures() {
    teach(NSWorkspaceClass, "iconForFile:", [](Object*, Selector, Object* path) {
        return autoreleased(make(NSImageClass, path->text));
    });
    teach(NSImageClass, "imageWithSystemSymbolName:accessibilityDescription:",
          [](Object*, Selector, Object* name, Object* description) -> Object* {
              note(u"symbol %1, %2"_s.arg(name->text, description->text));
              return autoreleased(make(NSImageClass, name->text));
          });
    teach(NSImageClass, "size", [](Object*, Selector) { return Size{22, 17}; });
    teach(NSImageClass, "CGImageForProposedRect:context:hints:",
          [](Object*, Selector, Rectangle* proposed, Object*, Object*) {
              note(u"picture %1x%2"_s.arg(proposed->size.width).arg(proposed->size.height));
              return thePicture();
          });
}

void teachEvents() {
    teach(NSEventClass, "eventWithCGEvent:", [](Object*, Selector, const void*) -> Object* {
        return fakeMac().event.isReadable ? autoreleased(make(NSEventClass)) : nullptr;
    });
    teach(NSEventClass, "hasPreciseScrollingDeltas",
          [](Object*, Selector) { return fakeMac().event.isPrecise; });
    teach(NSEventClass, "scrollingDeltaY",
          [](Object*, Selector) { return fakeMac().event.deltaY; });
    teach(NSEventClass, "modifierFlags", [](Object*, Selector) { return fakeMac().key.flags; });
    teach(NSEventClass, "keyCode", [](Object*, Selector) { return fakeMac().key.code; });
    teach(NSEventClass, "isARepeat", [](Object*, Selector) { return fakeMac().key.isRepeat; });
    teach(NSEventClass,
          "charactersByApplyingModifiers:", [](Object*, Selector name, unsigned long modifiers) {
              note(u"%1%2"_s.arg(QLatin1String(name)).arg(modifiers));
              return autoreleased(FakeMacParts::newString(fakeMac().key.characters));
          });
    teach(NSEventClass, "addGlobalMonitorForEventsMatchingMask:handler:",
          [](Object*, Selector, unsigned long long mask, Block* handler) -> Object* {
              note(u"monitor %1"_s.arg(mask));
              if (!fakeMac().allowsKeyMonitors) return nullptr;
              eventHandler = std::make_unique<KeptBlock>(*handler);
              return autoreleased(make(NSEventClass, u"monitor"_s));
          });
    teach(NSEventClass, "removeMonitor:", [](Object*, Selector, Object* monitor) {
        note(u"remove "_s + monitor->text);
        eventHandler = nullptr;
    });
}

} // namespace

bool pressElsewhere(const FakeMac::Key& key) {
    if (!eventHandler) return false;
    fakeMac().key = key;
    eventHandler->call(autoreleased(make(NSEventClass, u"key"_s)));
    return true;
}

bool movePointerElsewhere() {
    if (!eventHandler) return false;
    eventHandler->call(autoreleased(make(NSEventClass, u"movement"_s)));
    return true;
}

FakeMac& fakeMac() {
    static FakeMac only;
    return only;
}

void startFakeMac() {
    FakeObjectiveC::reset();
    eventHandler = nullptr;
    FakeMac& mac = fakeMac() = {};
    FakeMacParts::teachAppKit();
    NSApp = make(NSApplicationClass);
    mac.view = make(NSViewClass);
    mac.window = make(NSWindowClass, u"ours"_s);
    mac.otherWindow = make(NSWindowClass, u"another of ours"_s);
    mac.ourselves = make(NSRunningApplicationClass, u"ourselves"_s);
    mac.menuBarOwner = make(NSRunningApplicationClass, u"editor"_s);
}

void endFakeMac() {
    FakeMac& mac = fakeMac();
    if (mac.menuBarOwner != mac.ourselves) FakeObjectiveC::release(mac.menuBarOwner);
    for (Object* object : {NSApp, mac.view, mac.window, mac.otherWindow, mac.ourselves})
        FakeObjectiveC::release(object);
    FakeObjectiveC::drainPool();
}

namespace FakeMacParts {

void teachAppKit() {
    teachWindows();
    teachApplications();
    teachFiles();
    teachPictures();
    teachEvents();
    teach(NSStringClass, "description", [](Object* text, Selector) { return text; });
}

Object* newString(const QString& text) {
    return make(NSStringClass, text);
}

Object* newAddress(const QString& path) {
    return make(NSURLClass, path);
}

Object* newList(const QStringList& addresses) {
    return make(NSArrayClass, addresses.join(u'\n'));
}

} // namespace FakeMacParts

} // namespace tessaline
