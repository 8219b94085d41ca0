// What Qt has on a Mac only, between its types and the system's, and the two answers of its
// offscreen platform that the adapters must not take for those of a Mac.

#include "macos/adapters/FakeMac.h"

#include <QGuiApplication>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QWidget>

#import <AppKit/AppKit.h>

using namespace Qt::Literals::StringLiterals;

namespace parts = tessaline::FakeMacParts;

namespace {

QString textOf(const void* reference) {
    return reference ? static_cast<const tessaline::FakeObjectiveC::Object*>(reference)->text
                     : QString();
}

} // namespace

NSString* QString::toNSString() const {
    return (__bridge_transfer NSString*)static_cast<void*>(parts::newString(*this));
}

QString QString::fromNSString(const NSString* string) {
    return textOf((__bridge const void*)string);
}

CFStringRef QString::toCFString() const {
    return reinterpret_cast<CFStringRef>(parts::newString(*this));
}

QString QString::fromCFString(CFStringRef string) {
    return textOf(string);
}

CGPoint QPointF::toCGPoint() const noexcept {
    return {x(), y()};
}

QSizeF QSizeF::fromCGSize(CGSize size) noexcept {
    return {size.width, size.height};
}

QString QGuiApplication::platformName() {
    return u"cocoa"_s;
}

WId QWidget::winId() const {
    return reinterpret_cast<WId>(tessaline::fakeMac().view);
}
