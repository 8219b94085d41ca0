# tessaline_icon(VARIABLE)
# makes the bundle's icon of the drawings in resources/icons and names it in the variable.
function(tessaline_icon variable)
  set(drawings "${CMAKE_SOURCE_DIR}/resources/icons/tessaline")
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/tessaline.iconset")
  set(icon "${CMAKE_CURRENT_BINARY_DIR}/tessaline.icns")
  set(inputs)
  set(copies)
  # Every size in points once plain and once for displays with two pixels to the point.
  foreach(entry 16:16x16 32:16x16@2x 32:32x32 64:32x32@2x 128:128x128 256:128x128@2x 256:256x256
                512:256x256@2x 512:512x512)
    string(REPLACE ":" ";" entry "${entry}")
    list(GET entry 0 pixels)
    list(GET entry 1 name)
    list(APPEND inputs "${drawings}-${pixels}.png")
    list(APPEND copies COMMAND "${CMAKE_COMMAND}" -E copy "${drawings}-${pixels}.png"
                               "${folder}/icon_${name}.png")
  endforeach()
  list(REMOVE_DUPLICATES inputs)
  add_custom_command(
    OUTPUT "${icon}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}" ${copies}
    COMMAND iconutil --convert icns --output "${icon}" "${folder}"
    DEPENDS ${inputs}
    VERBATIM)
  set(${variable} "${icon}" PARENT_SCOPE)
endfunction()

# tessaline_app_bundle(TARGET)
# makes the program a bundle, Tessaline.app: without one, macOS neither remembers what it was allowed
# to do nor keeps it out of the Dock.
function(tessaline_app_bundle target)
  set(resources "${CMAKE_SOURCE_DIR}/resources")
  tessaline_icon(icon)
  target_sources(${target} PRIVATE ${TESSALINE_OBSIDIAN_PLUGIN_FILES} "${icon}")
  set_source_files_properties(
    ${TESSALINE_OBSIDIAN_PLUGIN_FILES}
    PROPERTIES MACOSX_PACKAGE_LOCATION Resources/ObsidianPlugin HEADER_FILE_ONLY ON)
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
endfunction()
