# The Debian package that `cpack` builds from what TessalineInstall installs.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessaline)
set(CPACK_PACKAGE_VENDOR "The Tessaline authors")
set(CPACK_PACKAGE_CONTACT "${TESSALINE_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "teleprompter under the top edge of the screen")
set(CPACK_PACKAGE_DESCRIPTION
    "Hangs a small black window under the top edge of the screen, right below a
laptop's camera, shows a Markdown script there in amber type and moves it by
itself, by the wheel, or by keys, stream decks and foot pedals.
.
Scripts come from files, from the clipboard or from an Obsidian vault.")
set(CPACK_PACKAGE_HOMEPAGE_URL "${TESSALINE_HOMEPAGE_URL}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/StripPackage.cmake")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE "${TESSALINE_DEBIAN_REVISION}")
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt reaches Wayland by a plug-in, which no library asks for.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-wayland")
# The default fonts have neither the prompter's shapes nor emoji; where a Wayland compositor places no
# windows, XWayland does; documents of word processors are read by pandoc.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-noto-color-emoji")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "pandoc, xwayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

include(CPack)
