# Lets CMake on Linux take the way that it takes on a Mac, as far as that goes without one: this
# machine's clang, C library and Qt, and declarations of our own instead of the system's headers.
# What comes out can be looked at, not run.
set(CMAKE_SYSTEM_NAME Darwin)

find_program(tessaline_clang NAMES clang++ REQUIRED)
foreach(language CXX OBJCXX)
  set(CMAKE_${language}_COMPILER "${tessaline_clang}")
  set(CMAKE_${language}_COMPILER_WORKS TRUE)
endforeach()
set(CMAKE_INSTALL_NAME_TOOL true)

get_filename_component(macos_tests "${CMAKE_CURRENT_LIST_DIR}" DIRECTORY)
set(macos_flags "-D__APPLE__ -U__linux__ -isystem ${macos_tests}/declarations")
# The deployment target means nothing to a compiler for Linux.
string(APPEND macos_flags " -Wno-unused-command-line-argument -Wnullable-to-nonnull-conversion")
set(CMAKE_CXX_FLAGS_INIT "${macos_flags}")
set(CMAKE_OBJCXX_FLAGS_INIT "${macos_flags} -fobjc-runtime=macosx-13 -fblocks")

list(PREPEND CMAKE_MODULE_PATH "${CMAKE_CURRENT_LIST_DIR}")
find_program(tessaline_pkg_config NAMES pkg-config REQUIRED)
execute_process(
  COMMAND "${tessaline_pkg_config}" --variable=libdir Qt6Core
  OUTPUT_VARIABLE qt_libraries
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(Qt6_DIR "${qt_libraries}/cmake/Qt6")
