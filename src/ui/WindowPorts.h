#pragma once

#include "permissions/PermissionManager.h"

namespace tessaline {

class FileIcons;
class NoteLibrary;
class ObsidianIntegration;
class Screens;
class UsageRecorder;

/// What the settings window and the first-run window need of the rest of the program. All of it
/// must outlive the windows.
struct WindowPorts {
    PermissionPorts permissions; ///< its timers and notifications serve the windows as well
    const Screens& screens;
    UsageRecorder& recorder;
    ObsidianIntegration& obsidian;
    NoteLibrary& notes;
    const FileIcons& icons;
};

} // namespace tessaline
