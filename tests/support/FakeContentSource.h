#pragma once

#include "sources/ContentSource.h"

#include <utility>

namespace tessaline {

/// Source that delivers what the test says. It keeps its callback when it is stopped, so that a
/// test can deliver too late.
class FakeContentSource final : public ContentSource {
public:
    void startWatching(ContentCallback onChange) override {
        ++starts;
        deliver = std::move(onChange);
    }

    void stopWatching() override { ++stops; }

    ContentCallback deliver;
    int starts = 0;
    int stops = 0;
};

} // namespace tessaline
