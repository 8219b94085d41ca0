#pragma once

namespace tessaline {

/// Has the program exit, with all that is done at an exit, where Qt would end it on the spot
/// because the compositor is gone. Call it once.
void exitWhenConnectionBreaks();

} // namespace tessaline
