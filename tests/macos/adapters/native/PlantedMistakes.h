#pragma once

namespace tessaline {

/// Mistakes that an adapter may make with references and messages, for the runtime to notice.
namespace PlantedMistakes {

void forgetAnObject();
void releaseAnObjectTwice();
void useAnObjectThatIsGone();
void askForWhatNobodyUnderstands();

} // namespace PlantedMistakes

} // namespace tessaline
