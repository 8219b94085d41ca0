#pragma once

#include "platform/LocalKeyMonitor.h"
#include "platform/qt/KeyTranslation.h"

namespace tessaline {

/// Hears the keys of all windows of the program through a filter on the application, which needs to
/// exist. Where somebody is typing, Control + V stays with the text field.
class QtLocalKeyMonitor final : public LocalKeyMonitor {
public:
    explicit QtLocalKeyMonitor(KeyTranslation translation);

    std::unique_ptr<Registration> start(Handler handler) override;

private:
    KeyTranslation translation;
};

} // namespace tessaline
