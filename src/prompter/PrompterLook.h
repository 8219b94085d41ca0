#pragma once

#include "prompter/view/ScriptLook.h"
#include "settings/ReadingSettings.h"

#include <QObject>

namespace tessaline {

class TextCovers;
class ScriptView;
class WindowTraits;
struct PrompterStatus;

/// Has the prompter look as the reading options say, as far as the system can: the ground is opaque
/// where nothing would be seen through it, and a font that is not installed is the desktop's.
class PrompterLook : public QObject {
    Q_OBJECT

public:
    /// Everything is borrowed.
    PrompterLook(ReadingSettings& settings, const WindowTraits& traits, ScriptView& view,
                 TextCovers& covers);

    /// How much of the desktop the black behind the text hides.
    double groundOpacity() const { return look.frame.groundOpacity; }

    /// What the text is set in; empty: the desktop's font.
    const QString& family() const { return look.typography.family; }

    /// Whether the mouse is to go through the text.
    bool isClickedThrough() const;

    /// Looks after what the system can do now.
    void update();

    /// Tells what is seen, where that is less than what the options say.
    void tell(PrompterStatus& status) const;

Q_SIGNALS:
    /// Something is seen otherwise than before, or clicked.
    void changed();

private:
    QString installedFamily();

    ReadingSettings& settings;
    const WindowTraits& traits;
    ScriptView& view;
    TextCovers& covers;
    ScriptLook look;
    QString missingFamily; ///< that was told of
    ReadingSettings::Observation observation;
};

} // namespace tessaline
