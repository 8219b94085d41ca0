# One place for what every target of ours has in common.

add_library(tessaline_options INTERFACE)
target_include_directories(tessaline_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_definitions(
  tessaline_options
  INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
            QT_DISABLE_DEPRECATED_BEFORE=0x060400 QT_WARN_DEPRECATED_UP_TO=0x060400)
# Designated initialisers leave the other members to their defaults, on purpose.
target_compile_options(
  tessaline_options INTERFACE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual
                              -Wno-missing-field-initializers)
# Of sources that are compiled together, one may well shadow a name of another one's own, and all look
# like headers.
target_compile_options(
  tessaline_options
  INTERFACE $<$<NOT:$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wshadow>
            $<$<AND:$<COMPILE_LANG_AND_ID:CXX,GNU>,$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wno-subobject-linkage>)
if(TESSALINE_SANITIZE)
  target_compile_options(
    tessaline_options INTERFACE -fsanitize=${TESSALINE_SANITIZE} -fno-omit-frame-pointer
                                -fno-sanitize-recover=all)
  target_link_options(tessaline_options INTERFACE -fsanitize=${TESSALINE_SANITIZE})
endif()

# What distributions ask of a program that reads foreign files. Sanitizers check more than this does,
# and want the C library as it is.
add_library(tessaline_hardening INTERFACE)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT TESSALINE_SANITIZE)
  target_compile_options(tessaline_hardening INTERFACE -fstack-protector-strong)
  target_compile_definitions(tessaline_hardening INTERFACE $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
  target_link_options(tessaline_hardening INTERFACE LINKER:-z,relro,-z,now)
endif()

# What is under test tells the fuzzer which branches it took.
add_library(tessaline_coverage INTERFACE)
if(TESSALINE_BUILD_FUZZ)
  target_compile_options(tessaline_coverage INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Compiling is mostly the reading of headers: those of Qt and of the standard library are read once for
# the program, and with those of the test frameworks once for tests of logic and once for tests of
# widgets.
# tessaline_precompiled(NAME HEADER [LIBRARIES ...] [HEADERS_OF ...])
# HEADERS_OF are libraries that not everybody links: their headers may be read, their definitions stay
# away, as the compiler takes only what was read under the definitions of the source at hand.
function(tessaline_precompiled name header)
  cmake_parse_arguments(ARG "" "" "LIBRARIES;HEADERS_OF" ${ARGN})
  set(folder "${CMAKE_SOURCE_DIR}/cmake/precompiled")
  add_library(tessaline_precompiled_${name} OBJECT "${folder}/Empty.cpp")
  target_precompile_headers(tessaline_precompiled_${name} PRIVATE "${folder}/${header}")
  target_link_libraries(tessaline_precompiled_${name} PRIVATE tessaline_options Qt6::Core ${ARG_LIBRARIES})
  foreach(library IN LISTS ARG_HEADERS_OF)
    target_include_directories(
      tessaline_precompiled_${name} SYSTEM
      PRIVATE "$<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>")
  endforeach()
endfunction()

tessaline_precompiled(program Program.h LIBRARIES tessaline_hardening tessaline_coverage HEADERS_OF Qt6::Gui Qt6::Widgets)

# tessaline_library(NAME SOURCES ... [PUBLIC ...] [PRIVATE ...])
# declares the static library tessaline_NAME, known to others as tessaline::NAME.
function(tessaline_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(tessaline_${name} STATIC ${ARG_SOURCES})
  add_library(tessaline::${name} ALIAS tessaline_${name})
  target_link_libraries(
    tessaline_${name}
    PUBLIC tessaline_options ${ARG_PUBLIC}
    PRIVATE tessaline_hardening tessaline_coverage ${ARG_PRIVATE})
  target_precompile_headers(tessaline_${name} REUSE_FROM tessaline_precompiled_program)
endfunction()

add_custom_target(threaded_tests)

if(TESSALINE_BUILD_TESTS)
  find_package(GTest REQUIRED)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  # Qt Test defines each test's folder for each source, which nothing here asks for and which no
  # precompiled header could share.
  add_library(tessaline_qt_test INTERFACE)
  target_link_libraries(tessaline_qt_test INTERFACE Qt6::Widgets "$<LINK_ONLY:Qt6::Test>")
  target_include_directories(
    tessaline_qt_test SYSTEM INTERFACE "$<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>")

  tessaline_precompiled(tests Tests.h LIBRARIES GTest::gmock)
  tessaline_precompiled(widget_tests WidgetTests.h LIBRARIES GTest::gmock tessaline_qt_test)
  # What a test does itself is plain enough; what it tests is watched for undefined behaviour.
  set(TESSALINE_TEST_OPTIONS -O0)
  if(TESSALINE_SANITIZE MATCHES "undefined")
    list(APPEND TESSALINE_TEST_OPTIONS -fno-sanitize=undefined)
  endif()
  target_compile_options(tessaline_precompiled_tests PRIVATE ${TESSALINE_TEST_OPTIONS})
  target_compile_options(tessaline_precompiled_widget_tests PRIVATE ${TESSALINE_TEST_OPTIONS})

  # After a change of one source most of the time goes into linking the tests: quicker linkers, where
  # there is one, take a third of it. What is shipped has the system's own.
  if(NOT CMAKE_SYSTEM_NAME STREQUAL "Darwin")
    include(CheckLinkerFlag)
    foreach(linker IN ITEMS gold lld)
      check_linker_flag(CXX -fuse-ld=${linker} TESSALINE_HAS_${linker})
      if(TESSALINE_HAS_${linker})
        set(TESSALINE_TEST_LINKER -fuse-ld=${linker})
      endif()
    endforeach()
  endif()
endif()

# tessaline_test(NAME [OPTIMISED] SOURCES ... LIBRARIES ... [LABELS ...])
# declares a GoogleTest program; every case becomes a CTest test named NAME.Suite.Case, or the whole
# program one named NAME with the label "program" where a sanitizer watches. The target
# threaded_tests builds all those with the label "threads"; "clock" is for those that watch the real one.
# Tests are compiled more often than they run, so only what they test is optimised, unless they
# compute much themselves: OPTIMISED.
function(tessaline_test name)
  cmake_parse_arguments(ARG "OPTIMISED" "" "SOURCES;LIBRARIES;LABELS" ${ARGN})
  add_executable(test_${name} ${ARG_SOURCES})
  target_include_directories(test_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_link_libraries(test_${name} PRIVATE tessaline_options GTest::gmock ${ARG_LIBRARIES})
  target_link_options(test_${name} PRIVATE ${TESSALINE_TEST_LINKER})
  if(NOT ARG_OPTIMISED)
    target_compile_options(test_${name} PRIVATE ${TESSALINE_TEST_OPTIONS})
    set(precompiled tests)
    if("tessaline::widget_test_support" IN_LIST ARG_LIBRARIES)
      set(precompiled widget_tests)
    endif()
    target_precompile_headers(test_${name} REUSE_FROM tessaline_precompiled_${precompiled})
  endif()
  if(TESSALINE_SANITIZE)
    # What a sanitizer watches takes long to start: all cases in one go.
    add_test(NAME ${name} COMMAND test_${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 1800 LABELS "program;${ARG_LABELS}")
  else()
    set(properties TIMEOUT 120)
    if(ARG_LABELS)
      # Discovery takes a list for further properties unless its separators are escaped.
      string(REPLACE ";" "\\;" labels "${ARG_LABELS}")
      list(APPEND properties LABELS "${labels}")
    endif()
    gtest_discover_tests(
      test_${name}
      TEST_PREFIX "${name}."
      DISCOVERY_MODE PRE_TEST
      NO_PRETTY_VALUES
      PROPERTIES ${properties})
  endif()
  if("threads" IN_LIST ARG_LABELS)
    add_dependencies(threaded_tests test_${name})
  endif()
endfunction()
