#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace tessaline {

// What each system has to say of the session before there is a `Platform`.

/// Chooses how to reach the display, before the QApplication is made. Returns what is wrong where
/// there is none, in one line.
std::optional<QString> prepareDisplay();

/// The text of an environment variable; empty where it is not set.
using SessionVariable = std::function<QString(const char* name)>;

/// What the session's display is called, the same in every program on it; empty where the user has
/// one session only. Needs no application object, like the next one.
QString displayOfSession(const SessionVariable& variable);

/// What the environment lacks to say which session this is, as half a sentence. Without it, the
/// prompter that runs in the session is not found.
std::optional<QString> missingSession();

} // namespace tessaline
