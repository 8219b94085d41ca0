# Lets CMake on Linux take the way that it takes on a Mac, as far as that goes without one: this
# machine's clang makes code for Darwin, with clang's C++ library, the headers of Linux' C library
# and of its Qt, and declarations of our own instead of the system's headers. What comes out can be
# looked at, not linked or run. TESSALINE_MAC_PROCESSOR is arm64, unless it is set to x86_64.
set(CMAKE_SYSTEM_NAME Darwin)
set(TESSALINE_MAC_PROCESSOR arm64 CACHE STRING "The processor to make code for")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TESSALINE_MAC_PROCESSOR)
set(CMAKE_SYSTEM_PROCESSOR "${TESSALINE_MAC_PROCESSOR}")

find_program(tessaline_clang NAMES clang++ REQUIRED)
foreach(language CXX OBJCXX)
  set(CMAKE_${language}_COMPILER "${tessaline_clang}")
  set(CMAKE_${language}_COMPILER_TARGET "${TESSALINE_MAC_PROCESSOR}-apple-macosx13.0")
  set(CMAKE_${language}_COMPILER_WORKS TRUE)
endforeach()
# Those of this machine do not know Darwin's objects.
find_program(CMAKE_AR NAMES llvm-ar REQUIRED)
find_program(CMAKE_RANLIB NAMES llvm-ranlib REQUIRED)
set(CMAKE_INSTALL_NAME_TOOL true)
# Linking takes the system's frameworks: what stands for the program is the archive of its objects.
foreach(language CXX OBJCXX)
  set(CMAKE_${language}_LINK_EXECUTABLE "<CMAKE_AR> crT <TARGET> <OBJECTS>")
endforeach()
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# The one that the oldest Xcode in question has.
set(cxx_headers "/usr/lib/llvm-16/include/c++/v1")
if(NOT EXISTS "${cxx_headers}")
  message(FATAL_ERROR "Clang's C++ library is not in ${cxx_headers}: run tools/install-dependencies ci")
endif()
set(c_headers_arm64 "/usr/aarch64-linux-gnu/include")
set(c_headers_x86_64 "/usr/include/x86_64-linux-gnu" "/usr/include")

get_filename_component(macos_tests "${CMAKE_CURRENT_LIST_DIR}" DIRECTORY)
set(macos_flags "-stdlib=libc++ -nostdinc++ -nostdlibinc")
foreach(folder "${macos_tests}/libcxx" "${cxx_headers}" "${macos_tests}/declarations"
               ${c_headers_${TESSALINE_MAC_PROCESSOR}})
  string(APPEND macos_flags " -isystem ${folder}")
endforeach()
# The header of this library lies among those of this machine's C library, which are not for here.
find_program(tessaline_pkg_config NAMES pkg-config REQUIRED)
execute_process(
  COMMAND "${tessaline_pkg_config}" --variable=includedir libqrencode
  OUTPUT_VARIABLE qrencode_headers
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(COPY "${qrencode_headers}/qrencode.h" DESTINATION "${CMAKE_BINARY_DIR}/headers")
string(APPEND macos_flags " -isystem ${CMAKE_BINARY_DIR}/headers")
# The C library's headers are made for Linux: what they ask of its compiler is undone here.
string(APPEND macos_flags " -D_GNU_SOURCE -U__nonnull -Wno-unused-command-line-argument"
       " -Wnullable-to-nonnull-conversion -Wunguarded-availability")
set(CMAKE_CXX_FLAGS_INIT "${macos_flags}")
set(CMAKE_OBJCXX_FLAGS_INIT "${macos_flags} -fblocks")

list(PREPEND CMAKE_MODULE_PATH "${CMAKE_CURRENT_LIST_DIR}")
execute_process(
  COMMAND "${tessaline_pkg_config}" --variable=libdir Qt6Core
  OUTPUT_VARIABLE qt_libraries
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(Qt6_DIR "${qt_libraries}/cmake/Qt6")
