#pragma once

#include "app/opening/DropArea.h"
#include "app/opening/OpeningMenu.h"
#include "app/opening/PlaceMemory.h"
#include "platform/Lifetime.h"
#include "sources/files/LatestScripts.h"
#include "sources/files/ScriptFile.h"

#include <QString>

#include <functional>

namespace tessaline {

class PrompterWindow;
class ScriptIntake;
struct DroppedContent;
struct Platform;
struct PrompterStatus;

/// Opens the scripts that the user keeps in files: by their paths, from the system's panel, from
/// the list of the latest, or dropped on the prompter. Reads them in the background, tells in the
/// prompter why one cannot be opened, and remembers where the reader was.
class ScriptOpening {
public:
    /// What a reader of files does in the background.
    using Reading = std::function<ReadText()>;
    using Done = std::function<void(const QString& problem)>;

    /// Borrows everything. `reveal` brings the prompter to the front.
    ScriptOpening(ScriptIntake& intake, PrompterWindow& prompter, const Platform& platform,
                  std::function<void()> reveal);
    ~ScriptOpening();

    /// Reads a file and shows it; the prompter is brought to the front only if it is hidden. `done`
    /// is told why it was not shown, or an empty text; it is not called once this is gone.
    void open(const QString& path, Done done = {});

    /// How to read a file whose path somebody named who knows how large it is. Any thread.
    Reading readingOf(const QString& path) const;

    /// Shows what was read of a file. Returns why it cannot be, or an empty text.
    QString show(const QString& path, const ReadText& read) { return show(path, read, {}); }

    /// The same with a file that is shown again whenever it changes.
    void follow(const QString& path, const QString& text);

    /// Asks the user for a file.
    void choose();

    /// Takes what was dropped.
    void take(const DroppedContent& content);

    LatestScripts& latest() { return latestScripts; }
    PlaceMemory& places() { return placeMemory; }

    /// Tells in a status what is open and what was.
    void tell(PrompterStatus& status) const;

    /// Writes down where the reader is, for the end of the program.
    void finish();

private:
    void open(const QString& path, const QString& remark, Done done);
    QString show(const QString& path, const ReadText& read, const QString& remark);
    void tellProblem(const QString& path, const QString& problem);

    ScriptIntake& intake;
    PrompterWindow& prompter;
    const Platform& platform;
    const std::function<void()> reveal;
    LatestScripts latestScripts;
    PlaceMemory placeMemory;
    OpeningMenu menu;
    DropArea dropArea;
    QString chosenFolder; ///< where the last file was picked
    Lifetime lifetime;
};

} // namespace tessaline
