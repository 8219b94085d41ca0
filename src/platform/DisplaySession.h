#pragma once

#include <QString>

#include <optional>

namespace tessaline {

// What each system has to say of the session before there is a `Platform`.

/// Chooses how to reach the display, before the QApplication is made. Returns what is wrong where
/// there is none, in one line. Main thread.
std::optional<QString> prepareDisplay();

/// Whether the environment says which session this is, so that the prompter that runs in it can be
/// found. Needs no application object.
bool isInASession();

} // namespace tessaline
