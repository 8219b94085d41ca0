#pragma once

namespace tessaline {

class NoteLibrary;
class ObsidianIntegration;
class UsageRecorder;

/// What windows use of the rest of the program, besides the platform. All of it must outlive them.
struct Services {
    UsageRecorder& recorder;
    ObsidianIntegration& obsidian;
    NoteLibrary& notes;
};

} // namespace tessaline
