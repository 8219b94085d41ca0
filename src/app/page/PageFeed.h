#pragma once

#include "remote/page/PageScript.h"
#include "remote/page/PageState.h"

#include <optional>

namespace tessaline {

class AppDelegate;

/// Tells pages what the prompter shows and does.
class PageFeed {
public:
    /// Borrows the delegate, which has its windows.
    explicit PageFeed(AppDelegate& delegate);

    /// As it is now.
    PageState state();

    const PageScript& script() const { return pageScript; }

private:
    AppDelegate& delegate;
    PageScript pageScript;
};

} // namespace tessaline
