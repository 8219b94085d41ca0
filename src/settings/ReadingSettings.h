#pragma once

#include "settings/ChangeObservers.h"
#include "settings/ReadingOptions.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tessaline {

template <typename Values>
class SettingsFile;

/// The user's reading options and their file, "reading.json" beside the configuration. One instance
/// is shared by reference. A change is one call: it is brought within its limits, saved at once,
/// and told to the observers. A file appears with the first change.
class ReadingSettings {
public:
    /// Starts from the defaults and loads the file over them: the one at `path`, if given, in place
    /// of the standard one. A file that cannot be used is reported on standard output, stays as it
    /// is, and changes nothing here; a copy of it is kept before the next save replaces it. Values
    /// beyond their limits are brought within them, and reported in the same way. So is a time to
    /// finish that has passed today.
    explicit ReadingSettings(const std::optional<QString>& path = std::nullopt);

    ~ReadingSettings();
    ReadingSettings(const ReadingSettings&) = delete;
    ReadingSettings& operator=(const ReadingSettings&) = delete;

    const ReadingOptions& values() const { return current; }

    /// Changes any number of options. A failure to save is reported on standard output.
    void change(const std::function<void(ReadingOptions& values)>& edit);

    using Observation = ChangeObservers<ReadingOptions>::Observation;

    /// Hears of changes once they are saved, with the options from before. It may outlive this.
    [[nodiscard]] Observation observe(ChangeObservers<ReadingOptions>::Observer observer);

private:
    void load();

    ReadingOptions current;
    ChangeObservers<ReadingOptions> observers;
    const std::unique_ptr<SettingsFile<ReadingOptions>> file;
};

} // namespace tessaline
