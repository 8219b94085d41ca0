# tessaline_wayland_protocol(NAME XML...) declares the library tessaline_wayland_NAME: what a client
# needs to speak protocols that are described in XML files. A source includes "STEM-client.h" of a
# description STEM.xml.
find_package(PkgConfig REQUIRED)
pkg_check_modules(wayland_client REQUIRED IMPORTED_TARGET wayland-client)
pkg_get_variable(TESSALINE_WAYLAND_SCANNER wayland-scanner wayland_scanner)
pkg_get_variable(TESSALINE_WAYLAND_PROTOCOLS wayland-protocols pkgdatadir)
if(NOT TESSALINE_WAYLAND_SCANNER OR NOT TESSALINE_WAYLAND_PROTOCOLS)
  message(FATAL_ERROR "Building for Wayland needs wayland-scanner and wayland-protocols.")
endif()

# Makes all that is generated, for those who read sources without building them.
add_custom_target(wayland_protocols)

function(tessaline_wayland_protocol name)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/protocols")
  file(MAKE_DIRECTORY "${folder}")
  set(generated)
  foreach(description IN LISTS ARGN)
    get_filename_component(stem "${description}" NAME_WE)
    get_filename_component(description "${description}" ABSOLUTE)
    add_custom_command(
      OUTPUT "${folder}/${stem}-client.h" "${folder}/${stem}.c"
      COMMAND "${TESSALINE_WAYLAND_SCANNER}" client-header "${description}" "${folder}/${stem}-client.h"
      COMMAND "${TESSALINE_WAYLAND_SCANNER}" private-code "${description}" "${folder}/${stem}.c"
      DEPENDS "${description}"
      VERBATIM)
    list(APPEND generated "${folder}/${stem}.c" "${folder}/${stem}-client.h")
  endforeach()
  add_custom_target(wayland_protocol_${name} DEPENDS ${generated})
  add_dependencies(wayland_protocols wayland_protocol_${name})
  add_library(tessaline_wayland_${name} STATIC ${generated})
  add_dependencies(tessaline_wayland_${name} wayland_protocol_${name})
  add_library(tessaline::wayland_${name} ALIAS tessaline_wayland_${name})
  target_include_directories(tessaline_wayland_${name} SYSTEM PUBLIC "${folder}")
  target_link_libraries(tessaline_wayland_${name} PUBLIC PkgConfig::wayland_client)
endfunction()
