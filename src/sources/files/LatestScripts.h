#pragma once

#include <QString>
#include <QStringView>

#include <memory>
#include <optional>
#include <vector>

namespace tessaline {

class TaskRunner;

/// A script that was opened from a file, and where its reader was. Holds no word of it.
struct LatestScript {
    QString path;
    double hash = 0.0;   ///< of the text, by `hashOf`; tells whether it is still the same
    double length = 0.0; ///< of the text as it is shown, in UTF-16 units
    double place = 0.0;  ///< the offset of the line being read; 0: the beginning

    bool operator==(const LatestScript&) const = default;
};

/// A number that another text hardly has, and that tells nothing of this one.
quint32 hashOf(QStringView text);

/// Where in a text that is now of this hash and length its reader was. None for a reader who was
/// at the beginning, and for a text that is quite another one.
std::optional<qsizetype> placeIn(const LatestScript& script, quint32 hash, qsizetype length);

/// What a menu calls these scripts: by the files' names, with their folders where names are equal.
std::vector<QString> titlesOf(const std::vector<LatestScript>& scripts);

/// The scripts that were opened last, the very last one first, and their file, "latest.json" beside
/// the settings, which only its user may read. The files themselves are never looked at. Saves in
/// the background.
class LatestScripts {
public:
    static constexpr std::size_t most = 10;

    /// Loads the file: the one at `path`, if given, in place of the standard one. One that cannot
    /// be used counts as empty; a copy is kept before the next save.
    explicit LatestScripts(TaskRunner& tasks, const std::optional<QString>& path = std::nullopt);
    ~LatestScripts();
    LatestScripts(const LatestScripts&) = delete;
    LatestScripts& operator=(const LatestScripts&) = delete;

    const std::vector<LatestScript>& all() const { return scripts; }

    /// Null for one that is not among them.
    const LatestScript* find(const QString& path) const;

    /// Puts a file first. One whose name is not UTF-8, or of endless length, is left out.
    void add(const QString& path);

    /// Takes over what is known of a script that is among them.
    void update(const LatestScript& known);

    void clear();

    /// Writes what is not written yet, for the end of the program.
    void finishSaving();

private:
    struct File;

    void save();

    TaskRunner& tasks;
    std::vector<LatestScript> scripts;
    const std::shared_ptr<File> file;
};

} // namespace tessaline
