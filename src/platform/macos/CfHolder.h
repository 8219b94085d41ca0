#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <memory>
#include <type_traits>

namespace tessaline {

struct CfRelease {
    void operator()(CFTypeRef object) const { CFRelease(object); }
};

/// Owns the reference that a Core Foundation function named Create or Copy returned, or nothing.
/// `Reference` is the type of the reference, such as CFStringRef.
template <typename Reference>
using CfHolder = std::unique_ptr<std::remove_pointer_t<Reference>, CfRelease>;

} // namespace tessaline
