#include "SteadyMemory.h"

namespace tessaline {

void makeMemorySteady() {}

} // namespace tessaline
