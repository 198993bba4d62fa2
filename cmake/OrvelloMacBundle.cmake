# Orvello.app: what the program's target needs to become an application bundle on macOS. The scripts in tools/macos make
# a release of it.

set(ORVELLO_UPDATE_PUBLIC_KEY "" CACHE STRING "Public key of the updates, as Sparkle's generate_keys prints it (SUPublicEDKey)")

# Sparkle is optional: without it the program says in its log that there is no updater.
find_library(SPARKLE_FRAMEWORK Sparkle PATHS ${PROJECT_SOURCE_DIR}/third_party/Sparkle NO_CMAKE_FIND_ROOT_PATH)
if(SPARKLE_FRAMEWORK)
    message(STATUS "Sparkle: ${SPARKLE_FRAMEWORK}")
else()
    message(STATUS "Sparkle: not found, this build has no updater (tools/macos/fetch-sparkle gets it)")
endif()

# The Sparkle keys of Info.plist, as far as they are configured.
function(orvello_update_keys variable)
    set(keys "")
    if(ORVELLO_FEED_URL)
        string(REPLACE "&" "&amp;" feed "${ORVELLO_FEED_URL}")
        string(APPEND keys "    <key>SUFeedURL</key>\n    <string>${feed}</string>\n")
    endif()
    if(ORVELLO_UPDATE_PUBLIC_KEY)
        string(APPEND keys "    <key>SUPublicEDKey</key>\n    <string>${ORVELLO_UPDATE_PUBLIC_KEY}</string>\n")
    endif()
    set(${variable} "${keys}" PARENT_SCOPE)
endfunction()

# orvello_make_bundle(target): build/Orvello.app with its Info.plist and its icon.
function(orvello_make_bundle target)
    set(resources ${PROJECT_SOURCE_DIR}/Resources)
    set(icons ${CMAKE_CURRENT_BINARY_DIR}/AppIcon.icns)
    add_custom_command(
        OUTPUT ${icons}
        COMMAND ${PROJECT_SOURCE_DIR}/tools/macos/make-icons ${resources}/AppIcon-1024.png ${icons}
        DEPENDS ${resources}/AppIcon-1024.png ${PROJECT_SOURCE_DIR}/tools/macos/make-icons
        VERBATIM)
    target_sources(${target} PRIVATE ${icons} ${resources}/AppIcon-1024.png)
    set_source_files_properties(${icons} ${resources}/AppIcon-1024.png PROPERTIES MACOSX_PACKAGE_LOCATION Resources)

    orvello_update_keys(ORVELLO_UPDATE_KEYS)
    configure_file(${resources}/macOS/Info.plist.in ${CMAKE_CURRENT_BINARY_DIR}/Info.plist @ONLY)
    set_target_properties(
        ${target}
        PROPERTIES MACOSX_BUNDLE ON
                   MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_BINARY_DIR}/Info.plist
                   OUTPUT_NAME Orvello
                   INSTALL_RPATH @executable_path/../Frameworks
                   BUILD_RPATH @executable_path/../Frameworks)
endfunction()
