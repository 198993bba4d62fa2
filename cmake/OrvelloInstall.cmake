# What `make install` puts where, on a Linux desktop. The package consists of the same: see OrvelloPackage.cmake.

set(resources ${PROJECT_SOURCE_DIR}/Resources)
set(reference ${PROJECT_BINARY_DIR}/reference)

# The history of the versions is in the metainfo file alone.
file(READ ${resources}/Linux/app.orvello.Orvello.metainfo.xml metainfo)
if(NOT metainfo MATCHES "<release version=\"([0-9.]+)\" date=\"([0-9-]+)\"" OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
    message(FATAL_ERROR "The newest release in app.orvello.Orvello.metainfo.xml is not ${PROJECT_VERSION}.")
endif()
set(ORVELLO_RELEASE_DATE ${CMAKE_MATCH_2})
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${resources}/Linux/app.orvello.Orvello.metainfo.xml)

# The man page and the completions say what the program says in its help. Not part of `all`: only what is installed needs
# them, and Python.
add_custom_command(
    OUTPUT ${reference}/orvello.1 ${reference}/orvello ${reference}/_orvello
    COMMAND ${PROJECT_SOURCE_DIR}/tools/make-reference $<TARGET_FILE:orvello> ${reference} ${PROJECT_VERSION}
            ${ORVELLO_RELEASE_DATE}
    DEPENDS orvello ${PROJECT_SOURCE_DIR}/tools/make-reference ${resources}/Linux/orvello.1.in
            ${resources}/Linux/orvello.bash.in ${resources}/Linux/orvello.zsh.in
    VERBATIM)
add_custom_target(reference DEPENDS ${reference}/orvello.1 ${reference}/orvello ${reference}/_orvello)
add_custom_target(installable DEPENDS orvello reference)

# The licences in the form of a Debian copyright file: each line indented, a dot for an empty one.
function(orvello_licence_text variable file first)
    file(READ ${file} text)
    string(FIND "${text}" "${first}" start)
    string(SUBSTRING "${text}" ${start} -1 text)
    string(STRIP "${text}" text)
    string(REGEX REPLACE "[ \t]*\n" "\n " text " ${text}\n")
    string(REGEX REPLACE "\n (\n|$)" "\n .\n" text "${text}")
    string(REGEX REPLACE "\n [.]\n$" "\n" text "${text}")
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()
orvello_licence_text(MIT_TEXT ${PROJECT_SOURCE_DIR}/LICENSE "Permission is hereby granted")
orvello_licence_text(OFL_TEXT ${resources}/Fonts/OFL.txt "SIL OPEN FONT LICENSE Version")
configure_file(${resources}/Linux/copyright.in ${reference}/copyright @ONLY)

install(TARGETS orvello RUNTIME)
# The program looks for its helper there: see ImpressHelper.cpp.
install(PROGRAMS ${PROJECT_BINARY_DIR}/impress-helper.py DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/orvello)

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${resources}/Icons/app.orvello.Orvello.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256 512)
    install(
        FILES ${resources}/Icons/${size}.png
        DESTINATION ${icons}/${size}x${size}/apps
        RENAME app.orvello.Orvello.png)
endforeach()

install(FILES ${resources}/Linux/app.orvello.Orvello.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${resources}/Linux/app.orvello.Orvello.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${reference}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/orvello)
install(FILES ${reference}/orvello.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${reference}/orvello DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${reference}/_orvello DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
