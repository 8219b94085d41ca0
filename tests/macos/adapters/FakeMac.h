#pragma once

#include "macos/adapters/ObjectiveC.h"

#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace tessaline {

/// What the adapters for macOS meet in their tests: the parts of the system that they call, which
/// do as they are told here and write down what was asked of them.
struct FakeMac {
    using Object = FakeObjectiveC::Object;

    /// An event before it reaches applications.
    struct Event {
        std::uint32_t type = 0;
        std::uint64_t flags = 0;
        std::int64_t button = 0;
        bool isReadable = true;
        bool isPrecise = false;
        double deltaY = 0.0;
    };

    struct Key {
        QString characters;
        unsigned short code = 0;
        std::uint64_t flags = 0;
        bool isRepeat = false;
    };

    struct Display {
        std::uint32_t id = 0;
        QRect bounds;
        bool isBuiltIn = false;
    };

    QStringList calls; ///< in order, each in a few words

    // Input.
    bool allowsTaps = true;
    bool allowsSources = true;
    bool tapIsOn = false;
    bool allowsKeyMonitors = true;
    Event event; ///< the one under way
    Key key;

    // Windows and applications. Those that hold a reference hold it for the whole test.
    Object* view = nullptr;
    Object* window = nullptr;
    Object* otherWindow = nullptr;
    Object* ourselves = nullptr;
    Object* menuBarOwner = nullptr;
    Object* keyWindow = nullptr;
    bool isActive = false;
    int majorVersion = 13;

    // Files, panels and pictures.
    QStringList applications; ///< where one is installed
    bool panelAnswersYes = true;
    std::optional<QString> pickedFolder;
    bool hasPictures = true;

    // The bundle, preferences and the permission.
    std::optional<QString> bundleIdentifier;
    std::map<QString, QString> bundleTexts;
    std::optional<QString> resources;
    std::map<QString, QString> preferences; ///< "domain key" to text
    std::optional<QString> preferenceOfAnotherType;
    bool isTrusted = false;
    std::vector<Display> displays;
};

/// The one of the test at hand.
FakeMac& fakeMac();

/// A fresh one, with nothing asked and nothing alive but its windows and applications.
void startFakeMac();

/// Lets its own objects go; what lives afterwards somebody forgot.
void endFakeMac();

enum class Passage { passedOn, swallowed, noTap };
/// Hands the tap an event.
Passage sendThroughTap(const FakeMac::Event& event);
/// Tells the tap that it was switched off, for which there is no event.
Passage switchTapOff(std::uint32_t reason);

/// Presses a key in another application. False when nobody listens.
bool pressElsewhere(const FakeMac::Key& key);
/// The same for the pointer, which is where the cursor is.
bool movePointerElsewhere();

namespace FakeMacParts {

void teachAppKit();
FakeObjectiveC::Object* newString(const QString& text);
FakeObjectiveC::Object* newAddress(const QString& path);
FakeObjectiveC::Object* newList(const QStringList& addresses);

} // namespace FakeMacParts

} // namespace tessaline
