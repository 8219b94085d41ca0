#pragma once

namespace tessaline {

/// Listens to what Qt says of the Wayland session. Where it would end the program on the spot
/// because the compositor is gone, the program exits with all that is done at an exit; that nothing
/// is drawn by the graphics card, as we want it, is not told to the user. Call it once.
void handleQtWaylandMessages();

} // namespace tessaline
