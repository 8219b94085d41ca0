#include "SteadyMemory.h"

#include <malloc.h>

namespace tessaline {

void makeMemorySteady() {
    // Setting the threshold also ends its rise to the size of what has been freed.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
}

} // namespace tessaline
