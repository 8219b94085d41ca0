#include "macos/adapters/native/PlantedMistakes.h"

#include <QString>

#import <AppKit/AppKit.h>

namespace tessaline::PlantedMistakes {

using namespace Qt::Literals::StringLiterals;

void forgetAnObject() {
    NSURL* address = [NSURL fileURLWithPath:u"/forgotten"_s.toNSString()];
    [[maybe_unused]] CFTypeRef reference = (__bridge_retained CFTypeRef)address;
}

void releaseAnObjectTwice() {
    CFStringRef text = u"released"_s.toCFString();
    CFRelease(text);
    CFRelease(text);
}

void useAnObjectThatIsGone() {
    CFStringRef text = u"gone"_s.toCFString();
    CFRelease(text);
    [(__bridge NSObject*)text isEqual:nil];
}

void askForWhatNobodyUnderstands() {
    [u"text"_s.toNSString() isEqual:nil];
}

} // namespace tessaline::PlantedMistakes
