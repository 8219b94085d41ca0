# One place for what every target of ours has in common.

add_library(tessaline_options INTERFACE)
target_include_directories(tessaline_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_definitions(
  tessaline_options
  INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
            QT_DISABLE_DEPRECATED_BEFORE=0x060400)
# Designated initialisers leave the other members to their defaults, on purpose.
target_compile_options(
  tessaline_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                              -Woverloaded-virtual -Wno-missing-field-initializers -Werror)
# Compiled together, files are included, and gcc takes their unnamed namespaces for a header's.
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(tessaline_options INTERFACE -Wno-subobject-linkage)
endif()
if(TESSALINE_SANITIZE)
  target_compile_options(
    tessaline_options INTERFACE -fsanitize=${TESSALINE_SANITIZE} -fno-omit-frame-pointer
                                -fno-sanitize-recover=all)
  target_link_options(tessaline_options INTERFACE -fsanitize=${TESSALINE_SANITIZE})
endif()

# tessaline_library(NAME SOURCES ... [PUBLIC ...] [PRIVATE ...])
# declares the static library tessaline_NAME, known to others as tessaline::NAME.
function(tessaline_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(tessaline_${name} STATIC ${ARG_SOURCES})
  add_library(tessaline::${name} ALIAS tessaline_${name})
  target_link_libraries(
    tessaline_${name}
    PUBLIC tessaline_options ${ARG_PUBLIC}
    PRIVATE ${ARG_PRIVATE})
endfunction()

# tessaline_compile_apart(FILE...) keeps files of this folder out of unity builds: a neighbour has the
# same name in its unnamed namespace.
function(tessaline_compile_apart)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

add_custom_target(threaded_tests)

# tessaline_test(NAME [OPTIMISED] SOURCES ... LIBRARIES ... [LABELS ...])
# declares a GoogleTest program; every case becomes a CTest test named NAME.Suite.Case. The target
# threaded_tests builds all those with the label "threads".
# Tests are compiled more often than they run, so only what they test is optimised, unless they
# compute much themselves: OPTIMISED.
function(tessaline_test name)
  cmake_parse_arguments(ARG "OPTIMISED" "" "SOURCES;LIBRARIES;LABELS" ${ARGN})
  add_executable(test_${name} ${ARG_SOURCES})
  target_include_directories(test_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_link_libraries(test_${name} PRIVATE tessaline_options GTest::gmock ${ARG_LIBRARIES})
  if(NOT ARG_OPTIMISED)
    target_compile_options(test_${name} PRIVATE -O0)
  endif()
  set(properties TIMEOUT 120)
  if(ARG_LABELS)
    list(APPEND properties LABELS "${ARG_LABELS}")
  endif()
  gtest_discover_tests(
    test_${name}
    TEST_PREFIX "${name}."
    DISCOVERY_MODE PRE_TEST
    PROPERTIES ${properties})
  if("threads" IN_LIST ARG_LABELS)
    add_dependencies(threaded_tests test_${name})
  endif()
endfunction()
