# The plug-in that the program installs in Obsidian: two files, beside the program in the build folder,
# where it looks for them first.
set(TESSALINE_OBSIDIAN_PLUGIN "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/resources/ObsidianPlugin")
set(TESSALINE_OBSIDIAN_PLUGIN_FILES "${TESSALINE_OBSIDIAN_PLUGIN}/main.js"
                                    "${TESSALINE_OBSIDIAN_PLUGIN}/manifest.json")

configure_file("${CMAKE_SOURCE_DIR}/resources/ObsidianPlugin/main.js"
               "${TESSALINE_OBSIDIAN_PLUGIN}/main.js" COPYONLY)
configure_file("${CMAKE_SOURCE_DIR}/resources/ObsidianPlugin/manifest.json.in"
               "${TESSALINE_OBSIDIAN_PLUGIN}/manifest.json" @ONLY)
