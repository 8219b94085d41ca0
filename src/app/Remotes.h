#pragma once

#include "app/MediaSession.h"
#include "app/page/RemotePage.h"

namespace tessaline {

/// What else may drive the prompter, each while the user wants it.
class Remotes {
public:
    /// Borrows all; the delegate owns it and has its windows.
    Remotes(AppDelegate& delegate, AppSettings& settings, const Platform& platform)
        : media(delegate, settings, platform), page(delegate, platform) {}

    MediaSession media;
    RemotePage page;
};

} // namespace tessaline
