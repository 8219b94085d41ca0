#include "macos/adapters/ObjectiveC.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <map>
#include <set>
#include <utility>

namespace tessaline::FakeObjectiveC {

namespace {

struct Runtime {
    std::map<std::pair<const Object*, std::string>, Method> methods;
    std::set<const Object*> classes;
    std::set<const Object*> living;
    std::vector<Object*> pool;
    std::vector<std::string> mistakes;
};

Runtime& runtime() {
    static Runtime only;
    return only;
}

/// Whether references to the object count: not for classes, which are for ever.
bool counts(const Object* object, const char* deed) {
    if (!object || runtime().classes.count(object)) return false;
    if (runtime().living.count(object)) return true;
    runtime().mistakes.push_back(std::string("an object that is gone is ") + deed);
    return false;
}

std::string describe(const Object& object) {
    return object.isa->name + (object.text.isEmpty() ? "" : " " + object.text.toStdString());
}

void drainTo(std::size_t depth) {
    while (runtime().pool.size() > depth) {
        Object* last = runtime().pool.back();
        runtime().pool.pop_back();
        release(last);
    }
}

/// What an object does that does not understand: nothing, with nothing for an answer.
std::intptr_t ignore() {
    return 0;
}

} // namespace

void teach(const Object& type, const char* selector, Method function) {
    runtime().classes.insert(&type);
    runtime().methods[{&type, selector}] = function;
}

Object* make(const Object& type, const QString& text) {
    auto* object = new Object{.isa = &type, .name = {}, .text = text};
    runtime().living.insert(object);
    return object;
}

Object* retain(Object* object) {
    if (counts(object, "retained")) ++object->references;
    return object;
}

void release(Object* object) {
    if (!counts(object, "released") || --object->references > 0) return;
    runtime().living.erase(object);
    delete object;
}

Object* autoreleased(Object* object) {
    if (counts(object, "left to a pool")) runtime().pool.push_back(object);
    return object;
}

void drainPool() {
    drainTo(0);
}

std::vector<std::string> livingObjects() {
    std::vector<std::string> names;
    for (const Object* object : runtime().living)
        names.push_back(describe(*object));
    return names;
}

std::vector<std::string> mistakes() {
    return runtime().mistakes;
}

void reset() {
    for (const Object* object : runtime().living)
        delete object;
    runtime() = {};
}

extern "C" Method tessalineFindMethod(const Object* receiver, const char* selector);
extern "C" Method tessalineFindMethod(const Object* receiver, const char* selector) {
    if (!runtime().classes.count(receiver) && !counts(receiver, "sent a message"))
        return reinterpret_cast<Method>(&ignore);
    const Object* type = receiver->isa ? receiver->isa : receiver;
    const auto found = runtime().methods.find({type, selector});
    if (found != runtime().methods.end()) return found->second;
    runtime().mistakes.push_back(type->name + " does not understand " + selector);
    return reinterpret_cast<Method>(&ignore);
}

} // namespace tessaline::FakeObjectiveC

// What the compiler calls of its own accord.

using tessaline::FakeObjectiveC::Object;
namespace fake = tessaline::FakeObjectiveC;

extern "C" {

Object* objc_retain(Object* object) {
    return fake::retain(object);
}
void objc_release(Object* object) {
    fake::release(object);
}
Object* objc_autorelease(Object* object) {
    return fake::autoreleased(object);
}
Object* objc_autoreleaseReturnValue(Object* object) {
    return fake::autoreleased(object);
}
Object* objc_retainAutorelease(Object* object) {
    return fake::autoreleased(fake::retain(object));
}
Object* objc_retainAutoreleaseReturnValue(Object* object) {
    return fake::autoreleased(fake::retain(object));
}
Object* objc_retainAutoreleasedReturnValue(Object* object) {
    return fake::retain(object);
}
Object* objc_unsafeClaimAutoreleasedReturnValue(Object* object) {
    return object;
}
void objc_storeStrong(Object** place, Object* object) {
    fake::retain(object);
    fake::release(std::exchange(*place, object));
}
void* objc_autoreleasePoolPush() {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the compiler only hands it back
    return reinterpret_cast<void*>(fake::runtime().pool.size());
}
void objc_autoreleasePoolPop(void* pool) {
    fake::drainTo(reinterpret_cast<std::size_t>(pool));
}
void objc_enumerationMutation(Object* /*collection*/) {
    std::cerr << "a collection changed while it was gone through" << std::endl;
    std::abort();
}

// Where blocks on the stack say what they are.
void* classOfStackBlocks[32] __asm__("_NSConcreteStackBlock");
}

// A message is a jump to the method with everything in registers and on the stack as it is; to
// nothing, it answers with nothing.
__asm__(R"(
    .text
    .globl objc_msgSend
    .type objc_msgSend, @function
objc_msgSend:
    .cfi_startproc
    testq %rdi, %rdi
    jne 1f
    xorl %eax, %eax
    xorl %edx, %edx
    xorps %xmm0, %xmm0
    xorps %xmm1, %xmm1
    ret
1:  pushq %rbp
    .cfi_def_cfa_offset 16
    .cfi_offset %rbp, -16
    movq %rsp, %rbp
    .cfi_def_cfa_register %rbp
    subq $192, %rsp
    movq %rdi, -8(%rbp)
    movq %rsi, -16(%rbp)
    movq %rdx, -24(%rbp)
    movq %rcx, -32(%rbp)
    movq %r8, -40(%rbp)
    movq %r9, -48(%rbp)
    movups %xmm0, -64(%rbp)
    movups %xmm1, -80(%rbp)
    movups %xmm2, -96(%rbp)
    movups %xmm3, -112(%rbp)
    call tessalineFindMethod@PLT
    movq %rax, %r11
    movq -8(%rbp), %rdi
    movq -16(%rbp), %rsi
    movq -24(%rbp), %rdx
    movq -32(%rbp), %rcx
    movq -40(%rbp), %r8
    movq -48(%rbp), %r9
    movups -64(%rbp), %xmm0
    movups -80(%rbp), %xmm1
    movups -96(%rbp), %xmm2
    movups -112(%rbp), %xmm3
    leave
    .cfi_def_cfa %rsp, 8
    jmp *%r11
    .cfi_endproc
    .size objc_msgSend, .-objc_msgSend
)");
