#pragma once

#include "screens/SizeSuggestion.h"

namespace tessaline {

class PrompterWindow;
class ReadingSettings;
struct PrompterStatus;

/// Knows which size of the text would be right on the prompter's screen.
class SizeAdviser {
public:
    /// Both are borrowed.
    SizeAdviser(const PrompterWindow& shownPrompter, const ReadingSettings& readingSettings)
        : prompter(shownPrompter), reading(readingSettings) {}

    SizeSuggestion suggestion() const;

    /// Tells it in a status.
    void tell(PrompterStatus& status) const;

private:
    const PrompterWindow& prompter;
    const ReadingSettings& reading;
};

} // namespace tessaline
