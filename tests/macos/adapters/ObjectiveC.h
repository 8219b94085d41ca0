#pragma once

#include <QString>

#include <string>
#include <vector>

namespace tessaline {

/// An Objective-C runtime as far as our adapters need one: objects with counted references, classes
/// whose methods are functions of the tests, messages, autorelease pools. One thread. What real
/// code would crash on fails the test at hand.
namespace FakeObjectiveC {

/// Where an object is, as messages have it: `isa` comes first, and is null for a class.
struct Object {
    const Object* isa = nullptr;
    std::string name; ///< of a class, or what failures call the object
    QString text;     ///< what strings, addresses and the like hold
    int references = 1;
};

/// A function that gets the receiver, the selector as text, and the arguments.
using Method = void (*)();

template <typename Result, typename... Arguments>
Method method(Result (*function)(Object*, const char*, Arguments...)) {
    return reinterpret_cast<Method>(function);
}

/// Objects of the class, and the class itself, understand the message from now on.
void teach(const Object& type, const char* selector, Method function);

/// A new object with one reference, the caller's.
Object* make(const Object& type, const QString& text = {});
Object* retain(Object* object);
void release(Object* object);
/// Passes the caller's reference on to the innermost pool.
Object* autoreleased(Object* object);

/// Ends the outermost pool, as the run loop does after each event.
void drainPool();

/// The objects that live, by class and text.
std::vector<std::string> livingObjects();
/// What has been asked of references that nobody had, and of objects that do not understand it.
std::vector<std::string> mistakes();
/// Forgets methods and mistakes. Objects that still live are gone.
void reset();

} // namespace FakeObjectiveC

} // namespace tessaline

/// Defines the class under the name that compiled code refers to.
#define TESSALINE_FAKE_CLASS(className)                                                            \
    extern "C" tessaline::FakeObjectiveC::Object className##Class __asm__(                         \
        "OBJC_CLASS_$_" #className);                                                               \
    tessaline::FakeObjectiveC::Object className##Class {                                           \
        .name = #className                                                                         \
    }
