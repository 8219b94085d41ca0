#pragma once

#include "platform/Lifetime.h"
#include "platform/NotificationCenter.h"

#include <QString>

#include <memory>
#include <optional>

namespace tessaline {

class LatestScripts;
class PrompterWindow;
class RepeatingTimer;
class ScriptIntake;
struct Platform;

/// Remembers where the reader is in a script that came from a file, and offers to go on there when
/// it is opened again. Nobody is taken there unasked.
class PlaceMemory {
public:
    /// How often the place is written down while a file is read, in seconds.
    static constexpr double interval = 10.0;

    /// Borrows everything.
    PlaceMemory(LatestScripts& latest, const ScriptIntake& intake, PrompterWindow& prompter,
                const Platform& platform);
    ~PlaceMemory();

    /// A file's text is about to be shown. `remark` is told together with an offer.
    void expect(const QString& path, const QString& text, const QString& remark);

    /// The path of the file that is shown; empty: what is shown is from no file.
    QString file() const;

    /// Writes down where the reader is, unless they only looked at the beginning.
    void remember();

    /// Whether there is a place further on where the reader was before.
    bool canContinue() const;

    /// Goes there. False when there is none.
    bool continueReading();

    /// What the offer is called, such as "Continue at “Second Part”"; empty: there is none.
    const QString& offer() const { return title; }

private:
    /// A text as it was read from a file.
    struct FileText {
        QString path;
        QString text;
        QString remark{};
        std::optional<quint32> hash{}; ///< once it was needed
    };

    quint32 hashOfCurrent();
    void shown(const QString& text);
    void arrive(bool isAnotherFile);
    void offerToContinue();
    void recogniseAtStart(const QString& text);
    void drop();

    LatestScripts& latest;
    const ScriptIntake& intake;
    PrompterWindow& prompter;
    const Platform& platform;
    std::optional<FileText> expected;
    std::optional<FileText> current;
    std::optional<qsizetype> place; ///< to continue at, in the text as it is shown
    QString title;
    bool hasStarted = false; ///< a text was shown
    std::unique_ptr<RepeatingTimer> remembering;
    NotificationCenter::Observation textObserver;
    Lifetime lifetime;
};

} // namespace tessaline
