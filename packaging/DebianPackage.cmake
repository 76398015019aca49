# The Debian package, made by `cpack`.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessaly)
set(CPACK_PACKAGE_CONTACT "Tessaly maintainers <maintainers@tessaly.example>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
if(TESSALY_HOMEPAGE_URL)
    set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${TESSALY_HOMEPAGE_URL})
endif()
# The libraries bring everything else along: the window system's plugin, fonts, and the engine's process and data.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# For the links, which are opened by the desktop, for the icon to be found, and for desktops without X.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hicolor-icon-theme, qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "editor for CSS3 background gradients
Shape a gradient on a canvas - drag its colour stops, double click to add one,
pick colour, position and opacity, choose orientation and notation - and take
the code: a stylesheet with the declarations that old and new browsers want,
always current, with a live preview in a real browser engine.
.
Gradients can be kept as presets and applied again with a click.")

include(CPack)
