# What `cmake --install` puts where on systems with the usual folders; macOS gets a bundle instead.

include(GNUInstallDirs)

set(identifier app.tessaline.Tessaline)
set(linux_resources "${CMAKE_SOURCE_DIR}/resources/linux")
set(icons "${CMAKE_SOURCE_DIR}/resources/icons")
set(generated "${CMAKE_BINARY_DIR}/install")

configure_file("${linux_resources}/${identifier}.metainfo.xml.in"
               "${generated}/${identifier}.metainfo.xml" @ONLY)

# Compressed, and without a time stamp, as distributions want them.
find_program(GZIP_PROGRAM gzip REQUIRED)
function(compressed_document source name)
  add_custom_command(
    OUTPUT "${generated}/${name}.gz"
    COMMAND "${CMAKE_COMMAND}" -E copy "${source}" "${generated}/${name}"
    COMMAND "${GZIP_PROGRAM}" -9 -n -f "${generated}/${name}"
    DEPENDS "${source}"
    VERBATIM)
endfunction()
compressed_document("${TESSALINE_DOCUMENTS}/tessaline.1" tessaline.1)
compressed_document("${CMAKE_SOURCE_DIR}/CHANGELOG.md" changelog)
set(compressed "${generated}/tessaline.1.gz" "${generated}/changelog.gz")
if(EXISTS "/etc/debian_version")
  execute_process(
    COMMAND date --utc --rfc-email "--date=${TESSALINE_RELEASE_DATE}"
    OUTPUT_VARIABLE release_time OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  configure_file("${linux_resources}/changelog.Debian.in" "${generated}/changelog.Debian.txt" @ONLY)
  compressed_document("${generated}/changelog.Debian.txt" changelog.Debian)
  list(APPEND compressed "${generated}/changelog.Debian.gz")
endif()
add_custom_target(compressed_documents ALL DEPENDS ${compressed})
add_dependencies(compressed_documents documents)

install(TARGETS tessaline RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(FILES ${TESSALINE_OBSIDIAN_PLUGIN_FILES}
        DESTINATION "${CMAKE_INSTALL_DATADIR}/tessaline/ObsidianPlugin")

install(FILES "${linux_resources}/${identifier}.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${generated}/${identifier}.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
set(icon_folder "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
foreach(size 16 22 24 32 48 64 128 256 512)
  install(
    FILES "${icons}/tessaline-${size}.png"
    DESTINATION "${icon_folder}/${size}x${size}/apps"
    RENAME "${identifier}.png")
endforeach()
install(
  FILES "${icons}/tessaline.svg"
  DESTINATION "${icon_folder}/scalable/apps"
  RENAME "${identifier}.svg")

install(FILES "${generated}/tessaline.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(
  FILES "${TESSALINE_DOCUMENTS}/tessaline.bash"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
  RENAME tessaline)
# Debian's zsh looks for what packages bring in a folder of its own.
if(EXISTS "/etc/debian_version")
  set(zsh_folder vendor-completions)
else()
  set(zsh_folder site-functions)
endif()
install(FILES "${TESSALINE_DOCUMENTS}/_tessaline"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/${zsh_folder}")
install(FILES "${TESSALINE_DOCUMENTS}/tessaline.fish"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")

set(document_folder "${CMAKE_INSTALL_DATADIR}/doc/tessaline")
install(FILES "${linux_resources}/copyright" "${generated}/changelog.gz"
              "${CMAKE_SOURCE_DIR}/docs/shortcuts.md" DESTINATION "${document_folder}")
if(EXISTS "/etc/debian_version")
  install(FILES "${generated}/changelog.Debian.gz" DESTINATION "${document_folder}")
  install(
    FILES "${linux_resources}/lintian-overrides"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides"
    RENAME tessaline)
endif()
install(
  FILES "${linux_resources}/autostart.desktop"
  DESTINATION "${document_folder}/examples"
  RENAME tessaline-autostart.desktop)
install(FILES "${CMAKE_SOURCE_DIR}/docs/examples/welcome.md"
        DESTINATION "${document_folder}/examples")
