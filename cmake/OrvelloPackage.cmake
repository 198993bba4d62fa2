# What `make deb` makes of the installed files: build/orvello_<version>_<architecture>.deb. CPack packs what `make install`
# installs; debhelper would want a second list of it.

# Libraries are found in the program. QML modules are not: a test compares these packages with what the views import.
set(qml_packages
    qml6-module-qtquick
    qml6-module-qtquick-controls
    qml6-module-qtquick-layouts
    qml6-module-qtquick-templates
    qml6-module-qtquick-window
    qml6-module-qtqml
    qml6-module-qtqml-models
    qml6-module-qtqml-workerscript)
list(JOIN qml_packages ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
# The helper for slideshows, and what opens links; the portal has the global keys of Wayland sessions.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "python3, xdg-utils, xdg-desktop-portal")
# Whoever has no LibreOffice shall not get it: its Python bridge would bring it.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "libreoffice-impress, python3-uno")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/DebianFiles.cmake)

set(CPACK_DEBIAN_PACKAGE_NAME orvello)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://orvello.app)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Orvello developers")
if(ORVELLO_SUPPORT_ADDRESS)
    string(APPEND CPACK_DEBIAN_PACKAGE_MAINTAINER " <${ORVELLO_SUPPORT_ADDRESS}>")
endif()
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "private teleprompter under your camera")
set(CPACK_PACKAGE_DESCRIPTION
    "A small dark panel under your camera shows your script; the text moves while
you talk, so that you read your notes and still look into the lens, in calls,
recordings and presentations.

The panel floats above everything and never takes the keyboard. With
Voice-Follow the text moves while you speak and waits while you pause. A
PowerPoint file becomes a script of its speaker notes, and while a LibreOffice
Impress slideshow runs the prompter follows it.")

include(CPack)
