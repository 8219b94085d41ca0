# The bundle, Tessaline.app, that macOS gets. With the toolchain file of tests/macos it is made on Linux
# as well, to be looked at.

# tessaline_icon(VARIABLE)
# makes the bundle's icon of the drawings in resources/icons and names it in the variable.
function(tessaline_icon variable)
  set(drawings "${CMAKE_SOURCE_DIR}/resources/icons/tessaline")
  set(icon "${CMAKE_CURRENT_BINARY_DIR}/tessaline.icns")
  find_program(ICONUTIL_PROGRAM iconutil)
  if(ICONUTIL_PROGRAM)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/tessaline.iconset")
    set(inputs)
    set(commands)
    # Every size in points once plain and once for displays with two pixels to the point.
    foreach(entry 16:16x16 32:16x16@2x 32:32x32 64:32x32@2x 128:128x128 256:128x128@2x 256:256x256
                  512:256x256@2x 512:512x512)
      string(REPLACE ":" ";" entry "${entry}")
      list(GET entry 0 pixels)
      list(GET entry 1 name)
      list(APPEND inputs "${drawings}-${pixels}.png")
      list(APPEND commands COMMAND "${CMAKE_COMMAND}" -E copy "${drawings}-${pixels}.png"
                                   "${folder}/icon_${name}.png")
    endforeach()
    list(REMOVE_DUPLICATES inputs)
    list(PREPEND commands COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}")
    list(APPEND commands COMMAND "${ICONUTIL_PROGRAM}" --convert icns --output "${icon}" "${folder}")
  else()
    find_program(PNG2ICNS_PROGRAM png2icns REQUIRED)
    foreach(pixels 16 32 128 256 512)
      list(APPEND inputs "${drawings}-${pixels}.png")
    endforeach()
    set(commands COMMAND "${PNG2ICNS_PROGRAM}" "${icon}" ${inputs})
  endif()
  add_custom_command(OUTPUT "${icon}" ${commands} DEPENDS ${inputs} VERBATIM)
  set(${variable} "${icon}" PARENT_SCOPE)
endfunction()

# tessaline_app_bundle(TARGET)
# makes the program a bundle: without one, macOS neither remembers what it was allowed to do nor keeps
# it out of the Dock.
function(tessaline_app_bundle target)
  set(resources "${CMAKE_SOURCE_DIR}/resources/macos")
  set(license "${CMAKE_CURRENT_BINARY_DIR}/Tessaline.txt")
  configure_file("${CMAKE_SOURCE_DIR}/LICENSE" "${license}" COPYONLY)
  set(licenses "${license}" "${resources}/licenses/Components.txt"
               "${resources}/licenses/GPL-3.0.txt" "${resources}/licenses/LGPL-3.0.txt")
  tessaline_icon(icon)
  target_sources(${target} PRIVATE ${TESSALINE_OBSIDIAN_PLUGIN_FILES} ${licenses} "${icon}")
  set_source_files_properties(
    ${TESSALINE_OBSIDIAN_PLUGIN_FILES}
    PROPERTIES MACOSX_PACKAGE_LOCATION Resources/ObsidianPlugin HEADER_FILE_ONLY ON)
  set_source_files_properties(${licenses} PROPERTIES MACOSX_PACKAGE_LOCATION Resources/Licenses)
  set_source_files_properties("${icon}" PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  set_target_properties(
    ${target}
    PROPERTIES OUTPUT_NAME Tessaline
               MACOSX_BUNDLE ON
               MACOSX_BUNDLE_INFO_PLIST "${resources}/Info.plist.in"
               MACOSX_BUNDLE_BUNDLE_NAME Tessaline
               MACOSX_BUNDLE_GUI_IDENTIFIER app.tessaline.Tessaline
               MACOSX_BUNDLE_ICON_FILE tessaline
               MACOSX_BUNDLE_SHORT_VERSION_STRING "${PROJECT_VERSION}"
               MACOSX_BUNDLE_BUNDLE_VERSION "${PROJECT_VERSION}")
  install(TARGETS ${target} BUNDLE DESTINATION .)
endfunction()
