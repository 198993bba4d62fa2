# CPack runs this on the files that are to be packed: makes of them what Debian's policy wants, and `make install` does not.

set(files ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX})

# Debian's zsh looks for those of packages there.
file(MAKE_DIRECTORY ${files}/share/zsh/vendor-completions)
file(RENAME ${files}/share/zsh/site-functions/_orvello ${files}/share/zsh/vendor-completions/_orvello)
file(REMOVE_RECURSE ${files}/share/zsh/site-functions)

# The history in Debian's form, out of the metainfo file's <release> elements.
file(READ ${files}/share/metainfo/app.orvello.Orvello.metainfo.xml metainfo)
string(REGEX MATCHALL "<release version=[^>]*>.*</release>" releases "${metainfo}")
string(REPLACE "</release>" ";" releases "${releases}")
set(changelog "")
foreach(release IN LISTS releases)
    if(NOT release MATCHES "<release version=\"([0-9.]+)\" date=\"([0-9-]+)\"")
        continue()
    endif()
    set(version ${CMAKE_MATCH_1})
    execute_process(
        COMMAND date --utc --rfc-email --date ${CMAKE_MATCH_2}
        OUTPUT_VARIABLE date
        OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(APPEND changelog "${CPACK_DEBIAN_PACKAGE_NAME} (${version}) unstable; urgency=medium\n\n")
    string(REGEX MATCHALL "<(p|li)>[^<]*</(p|li)>" changes "${release}")
    foreach(change IN LISTS changes)
        string(REGEX REPLACE "</?(p|li)>" "" change "${change}")
        string(REGEX REPLACE "[ \n]+" " " change "${change}")
        string(APPEND changelog "  * ${change}\n")
    endforeach()
    string(APPEND changelog "\n -- ${CPACK_DEBIAN_PACKAGE_MAINTAINER}  ${date}\n\n")
endforeach()
file(WRITE ${files}/share/doc/orvello/changelog "${changelog}")

foreach(file share/doc/orvello/changelog share/man/man1/orvello.1)
    execute_process(COMMAND gzip -9 --no-name --force ${files}/${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
