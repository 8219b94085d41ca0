#pragma once

#include "screens/SizeSuggestion.h"

namespace tessaline {

class PrompterWindow;
class ReadingSettings;

/// Knows which size of the text would be right on the prompter's screen.
class SizeAdviser {
public:
    /// Both are borrowed.
    SizeAdviser(const PrompterWindow& shownPrompter, const ReadingSettings& readingSettings)
        : prompter(shownPrompter), reading(readingSettings) {}

    SizeSuggestion suggestion() const;

private:
    const PrompterWindow& prompter;
    const ReadingSettings& reading;
};

} // namespace tessaline
