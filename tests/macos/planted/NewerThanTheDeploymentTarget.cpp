#include <charconv>

// Floating point came to the system's C++ library after macOS 13.
char* write(char* first, char* last, double value) {
    return std::to_chars(first, last, value).ptr;
}
